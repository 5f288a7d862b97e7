#pragma once

#include <memory>
#include <string>

#include "backend/corvane/View.h"
#include "backend/directory/Changes.h"

namespace mindloft::Corvane {

class Style;

/// The display styles that domains can use.
class Styles {
 public:
  explicit Styles(std::shared_ptr<Session> session) : session_(std::move(session)) {}
  std::shared_ptr<Style> Item(const std::string& id) const;
  std::int64_t Count() const;
  StyleView View() const;
  std::shared_ptr<Style> Add() const;
  void Delete(const ObjectVersion& style) const;

 private:
  std::shared_ptr<Session> session_;
};

}  // namespace mindloft::Corvane
