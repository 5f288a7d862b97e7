#pragma once

#include <memory>
#include <string>
#include <vector>

#include "backend/corvane/DGroups.h"
#include "backend/corvane/User.h"
#include "backend/corvane/View.h"

namespace mindloft::Corvane {

class DomainContext;

/// One knowledge domain, stored or new.
class KDomain {
 public:
  KDomain(std::shared_ptr<Session> session, DomainRecord stored);

  /// Empty while the domain is new.
  std::string Id() const;
  const std::string& Name() const { return edited_.name; }
  void SetName(std::string name) { edited_.name = std::move(name); }
  const std::string& Description() const { return edited_.description; }
  void SetDescription(std::string text) { edited_.description = std::move(text); }
  std::string StyleId() const;
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
  void ChangeUsers(const std::string& additions, const std::string& removals);
  std::shared_ptr<Users> GetUsersNotAccessible() const;
  const DomainRecord& Stored() const { return stored_; }

 private:
  std::shared_ptr<Session> session_;
  DomainRecord stored_, edited_;
  DomainCopy copy_;
};

/// The knowledge domains of the server. `Item` gives the domain as the logged-in user sees it.
class KDomains {
 public:
  explicit KDomains(std::shared_ptr<Session> session) : session_(std::move(session)) {}
  /// A new domain, stored by its first Update.
  std::shared_ptr<KDomain> Add() const;
  /// The key is the domain's identifier; nothing when there is none.
  std::shared_ptr<DomainContext> Item(const std::string& key) const;
  std::int64_t Count() const;
  DomainView View() const;
  /// A context for a record that a view returned.
  std::shared_ptr<DomainContext> Context(const DomainRecord& record) const;
  void Delete(const ObjectVersion& domain, const Progress& progress = {}) const;

 private:
  std::shared_ptr<Session> session_;
};

}  // namespace mindloft::Corvane
