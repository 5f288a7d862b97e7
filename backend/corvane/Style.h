#pragma once

#include <memory>
#include <string>

#include "backend/corvane/View.h"

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

 private:
  std::shared_ptr<Session> session_;
  StyleRecord stored_, edited_;
};

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

/// The server's log of changes.
class Log {
 public:
  explicit Log(std::shared_ptr<Session> session) : session_(std::move(session)) {}
  JournalView View() const;

 private:
  std::shared_ptr<Session> session_;
};

}  // namespace mindloft::Corvane
