#include "backend/corvane/Styles.h"

#include <utility>

#include "backend/corvane/Style.h"

namespace mindloft::Corvane {

std::shared_ptr<Style> Styles::Item(const std::string& id) const {
  auto record = session_->Door().FindStyle(session_->id, IdFromText(id));
  return record ? std::make_shared<Style>(session_, std::move(*record)) : nullptr;
}

std::int64_t Styles::Count() const {
  return View().Count();
}

StyleView Styles::View() const {
  return StyleView(session_, Collection::Styles);
}

std::shared_ptr<Style> Styles::Add() const {
  return std::make_shared<Style>(session_, StyleRecord());
}

void Styles::Delete(const ObjectVersion& style) const {
  session_->Door().DeleteStyle(session_->id, style);
}

}  // namespace mindloft::Corvane
