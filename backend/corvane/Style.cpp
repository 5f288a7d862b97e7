#include "backend/corvane/Style.h"

#include <utility>

#include "backend/corvane/ChangedField.h"

namespace mindloft::Corvane {

Style::Style(std::shared_ptr<Session> session, StyleRecord stored)
    : session_(std::move(session)), stored_(std::move(stored)), edited_(stored_) {}

std::string Style::Id() const {
  return IdText(stored_.id);
}

void Style::Update() {
  if (IsNew()) {
    stored_ = session_->Door().CreateStyle(session_->id, edited_);
  } else {
    StyleChange change;
    change.id = stored_.id;
    change.version = stored_.version;
    bool changed = TakeChanged(change.name, stored_.name, edited_.name);
    changed |= TakeChanged(change.definition, stored_.definition, edited_.definition);
    if (!changed) return;
    stored_ = session_->Door().ChangeStyle(session_->id, change);
  }
  edited_ = stored_;
}

void Style::CancelEdit(bool cancel) {
  if (cancel) edited_ = stored_;
}

}  // namespace mindloft::Corvane
