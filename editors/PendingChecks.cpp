#include "editors/PendingChecks.h"

namespace mindloft {

void PendingChecks::Clear() {
  saved_.clear();
  changed_.clear();
}

void PendingChecks::SetSaved(const std::vector<ObjectId>& ids, const std::vector<ObjectId>& scopes) {
  saved_.clear();
  saved_.reserve(ids.size());
  for (std::size_t i = 0; i < ids.size(); ++i) saved_.emplace(ids[i], i < scopes.size() ? scopes[i] : 0);
  std::erase_if(changed_, [this](const auto& each) { return each.second.checked == IfIdExist(each.first); });
}

bool PendingChecks::IsChecked(ObjectId id) const {
  const auto change = changed_.find(id);
  return change != changed_.end() ? change->second.checked : IfIdExist(id);
}

void PendingChecks::Toggle(ObjectId id, ObjectId scope) {
  const bool checked = !IsChecked(id);
  if (checked == IfIdExist(id))
    changed_.erase(id);
  else
    changed_[id] = {scope, checked};
}

std::vector<ObjectId> PendingChecks::CheckedIn(ObjectId scope) const {
  std::vector<ObjectId> ids;
  for (const auto& [id, savedScope] : saved_)
    if (savedScope == scope && changed_.count(id) == 0) ids.push_back(id);
  for (const auto& [id, change] : changed_)
    if (change.scope == scope && change.checked) ids.push_back(id);
  return ids;
}

std::vector<ObjectId> PendingChecks::Changed(bool checked) const {
  std::vector<ObjectId> ids;
  for (const auto& [id, change] : changed_)
    if (change.checked == checked) ids.push_back(id);
  return ids;
}

void PendingChecks::Commit() {
  for (const auto& [id, change] : changed_) {
    if (change.checked)
      saved_[id] = change.scope;
    else
      saved_.erase(id);
  }
  changed_.clear();
}

}  // namespace mindloft
