#pragma once

#include <memory>
#include <string>

#include "backend/corvane/Session.h"
#include "backend/corvane/document/SanitizeDocument.h"

namespace mindloft::Corvane {

class DGroups;
class Users;

/// One knowledge domain, stored or new.
class KDomain {
 public:
  KDomain(std::shared_ptr<Session> session, DomainRecord stored);

  /// Empty while the domain is new.
  std::string Id() const;
  const std::string& Name() const { return edited_.name; }
  void SetName(std::string name) { edited_.name = std::move(name); }
  const std::string& Description() const { return edited_.description; }
  /// Takes a formatted description away.
  void SetDescription(std::string text);
  /// The description as a formatted document, made safe to show; of a plain one its lines as paragraphs.
  SafeDocument Document() const;
  /// The document's beginning becomes the plain description, for lists and searches.
  void SetDocument(const std::string& xml);
  std::string StyleId() const;
  /// Empty: none. TypeMismatch when it is no identifier.
  void SetStyleId(const std::string& id);
  bool Disabled() const { return edited_.disabled; }
  void SetDisabled(bool disabled) { edited_.disabled = disabled; }
  std::shared_ptr<Users> DUsers() const;
  std::shared_ptr<Corvane::DGroups> DGroups() const;
  bool IsNew() const { return stored_.id == 0; }
  /// What Update of a new domain takes over.
  void CopyFrom(const DomainCopy& copy) { copy_ = copy; }
  void Update(const Progress& progress = {});
  void CancelEdit(bool cancel);
  /// Two lists of user identifiers joined by ";": stored at once.
  void ChangeUsers(const std::string& additions, const std::string& removals, const Progress& progress = {});
  std::shared_ptr<Users> GetUsersNotAccessible() const;
  const DomainRecord& Stored() const { return stored_; }
  /// The stored record with the puts that wait for Update.
  const DomainRecord& Edited() const { return edited_; }
  /// The record as it is stored now; the object stays as it is. ObjectNotFound when it is gone.
  DomainRecord Current() const;
  /// Takes another record as the stored one, and what is to wait for Update on it.
  void Rebase(DomainRecord stored, DomainRecord edited);

 private:
  std::shared_ptr<Session> session_;
  DomainRecord stored_, edited_;
  DomainCopy copy_;
};

}  // namespace mindloft::Corvane
