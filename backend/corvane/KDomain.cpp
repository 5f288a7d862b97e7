#include "backend/corvane/KDomain.h"

#include <utility>

#include "backend/corvane/ChangedField.h"
#include "backend/corvane/DGroups.h"
#include "backend/corvane/IdList.h"
#include "backend/corvane/MembershipLists.h"
#include "backend/corvane/Users.h"
#include "backend/corvane/document/DocumentText.h"
#include "backend/directory/TextLengths.h"
#include "backend/errors/Error.h"
#include "platform/Unicode.h"

namespace mindloft::Corvane {

KDomain::KDomain(std::shared_ptr<Session> session, DomainRecord stored)
    : session_(std::move(session)), stored_(std::move(stored)), edited_(stored_) {}

std::string KDomain::Id() const {
  return IdText(stored_.id);
}

std::string KDomain::StyleId() const {
  return IdText(edited_.style);
}

void KDomain::SetStyleId(const std::string& id) {
  const auto ids = IdsFromList(id);
  if (ids.size() > 1) throw Error(ErrorNumber::TypeMismatch, "more than one style");
  edited_.style = ids.empty() ? 0 : ids.front();
}

void KDomain::SetDescription(std::string text) {
  edited_.description = std::move(text);
  edited_.document.clear();
}

SafeDocument KDomain::Document() const {
  if (edited_.document.empty())
    return {.xml = DocumentOfPlainText(edited_.description), .state = DocumentState::Whole};
  return SanitizeDocument(edited_.document);
}

void KDomain::SetDocument(const std::string& xml) {
  edited_.description = PlainTextOf(xml);
  edited_.description.resize(platform::BytesOfCharacters(edited_.description, kTextLength));
  edited_.document = xml;
}

std::shared_ptr<Users> KDomain::DUsers() const {
  return std::make_shared<Users>(session_, Collection::DomainUsers, stored_.id);
}

std::shared_ptr<DGroups> KDomain::DGroups() const {
  return std::make_shared<Corvane::DGroups>(session_, stored_.id);
}

void KDomain::Update(const Progress& progress) {
  if (IsNew()) {
    stored_ = session_->Door().CreateDomain(session_->id, edited_, copy_, progress);
  } else {
    DomainChange change;
    change.id = stored_.id;
    change.version = stored_.version;
    bool changed = TakeChanged(change.name, stored_.name, edited_.name);
    changed |= TakeChanged(change.description, stored_.description, edited_.description);
    changed |= TakeChanged(change.document, stored_.document, edited_.document);
    changed |= TakeChanged(change.style, stored_.style, edited_.style);
    changed |= TakeChanged(change.disabled, stored_.disabled, edited_.disabled);
    if (!changed) return;
    stored_ = session_->Door().ChangeDomain(session_->id, change);
  }
  edited_ = stored_;
}

void KDomain::CancelEdit(bool cancel) {
  if (!cancel) return;
  edited_ = stored_;
  copy_ = {};
}

void KDomain::ChangeUsers(const std::string& additions, const std::string& removals,
                          const Progress& progress) {
  stored_.version = ChangeMemberships(*session_, Membership::DomainUsers, {stored_.id, stored_.version},
                                      additions, removals, progress);
}

std::shared_ptr<Users> KDomain::GetUsersNotAccessible() const {
  return std::make_shared<Users>(session_, Collection::UsersWithoutDomain, stored_.id);
}

DomainRecord KDomain::Current() const {
  auto found = session_->Door().FindDomain(session_->id, stored_.id);
  if (!found) throw Error(ErrorNumber::ObjectNotFound, "domain " + Id());
  return std::move(*found);
}

void KDomain::Rebase(DomainRecord stored, DomainRecord edited) {
  stored_ = std::move(stored);
  edited_ = std::move(edited);
}

}  // namespace mindloft::Corvane
