#pragma once

#include <memory>
#include <string>

#include "backend/corvane/Session.h"

namespace mindloft::Corvane {

/// A display style, stored or new.
class Style {
 public:
  Style(std::shared_ptr<Session> session, StyleRecord stored);
  std::string Id() const;
  const std::string& Name() const { return edited_.name; }
  void SetName(std::string name) { edited_.name = std::move(name); }
  const std::string& Definition() const { return edited_.definition; }
  void SetDefinition(std::string text) { edited_.definition = std::move(text); }
  bool IsNew() const { return stored_.id == 0; }
  void Update();
  void CancelEdit(bool cancel);
  const StyleRecord& Stored() const { return stored_; }

 private:
  std::shared_ptr<Session> session_;
  StyleRecord stored_, edited_;
};

}  // namespace mindloft::Corvane
