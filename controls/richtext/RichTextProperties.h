#pragma once

#include <vector>

#include "controls/bag/PropertyTable.h"
#include "controls/richtext/RichTextControl.h"

namespace mindloft {

/// The properties that both rich-text controls keep.
template <typename Control>
std::vector<typename PropertyTable<Control>::Entry> RichTextProperties() {
  using C = Control;
  return {
      InheritedProperty<C>("Text", &C::Text, &C::SetText, wxString()),
      InheritedProperty<C>("Enable", &C::GetEnable, &C::SetEnable, true),
      InheritedProperty<C>("ViewMode", &C::ViewMode, &C::SetViewMode, kNormalView),
      InheritedProperty<C>("GridLines", &C::GridLines, &C::SetGridLines, true),
      InheritedProperty<C>("Locked", &C::Locked, &C::SetLocked, false),
      InheritedProperty<C>("StatueBarVisible", &C::StatueBarVisible, &C::SetStatueBarVisible, true),
      InheritedProperty<C>("RulerBarVisible", &C::RulerBarVisible, &C::SetRulerBarVisible, true),
  };
}

}  // namespace mindloft
