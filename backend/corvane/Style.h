#pragma once

#include <memory>
#include <string>

#include "backend/corvane/StyleFormat.h"
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
  /// What the definition says; what cannot be read has its default.
  StyleFormat Format() const;
  /// What cannot be read of the definition, for the log; empty: nothing.
  std::string FormatProblem() const;
  /// A format that the definition says already leaves the definition as it is.
  void SetFormat(const StyleFormat& format);
  bool IsNew() const { return stored_.id == 0; }
  void Update();
  void CancelEdit(bool cancel);
  /// The domains that are shown in the style.
  DomainView Domains() const;
  const StyleRecord& Stored() const { return stored_; }
  /// The stored record with the puts that wait for Update.
  const StyleRecord& Edited() const { return edited_; }
  /// The record as it is stored now; the object stays as it is. ObjectNotFound when it is gone.
  StyleRecord Current() const;
  /// Takes another record as the stored one, and what is to wait for Update on it.
  void Rebase(StyleRecord stored, StyleRecord edited);

 private:
  std::shared_ptr<Session> session_;
  StyleRecord stored_, edited_;
};

}  // namespace mindloft::Corvane
