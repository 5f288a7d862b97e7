#include "backend/corvane/Style.h"

#include <utility>

#include "backend/corvane/ChangedField.h"
#include "backend/corvane/StyleXml.h"
#include "backend/errors/Error.h"

namespace mindloft::Corvane {

Style::Style(std::shared_ptr<Session> session, StyleRecord stored)
    : session_(std::move(session)), stored_(std::move(stored)), edited_(stored_) {}

std::string Style::Id() const {
  return IdText(stored_.id);
}

StyleFormat Style::Format() const {
  return ReadStyle(edited_.definition).format;
}

std::string Style::FormatProblem() const {
  return ReadStyle(edited_.definition).problem;
}

void Style::SetFormat(const StyleFormat& format) {
  const auto present = ReadStyle(edited_.definition);
  if (present.problem.empty() && present.format == format) return;
  edited_.definition = WriteStyle(format, edited_.definition);
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

DomainView Style::Domains() const {
  return DomainView(session_, Collection::StyleDomains, stored_.id);
}

StyleRecord Style::Current() const {
  auto found = session_->Door().FindStyle(session_->id, stored_.id);
  if (!found) throw Error(ErrorNumber::ObjectNotFound, "style " + Id());
  return std::move(*found);
}

void Style::Rebase(StyleRecord stored, StyleRecord edited) {
  stored_ = std::move(stored);
  edited_ = std::move(edited);
}

}  // namespace mindloft::Corvane
