#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace mindloft::Corvane {

// The formats of a document's element as the "style" of an HTML element, and back.

/// "color:#ff0000;font-weight:bold"; empty when the element has none that HTML knows.
std::string HtmlStyleOf(const pugi::xml_node& element);

/// Sets what an HTML element's style says on an element of a document. What is unknown has no effect.
void ReadHtmlStyle(std::string_view style, pugi::xml_node element);

/// Sets the attribute, in place of one of that name.
void SetAttribute(pugi::xml_node element, const char* name, std::string_view value);

// How the component tells these two in "bulletstyle".
inline constexpr int kNumberedBullet = 0x1;
inline constexpr int kLetterBullet = 0x4;
inline constexpr int kRomanBullet = 0x8;
inline constexpr int kSymbolBullet = 0x20;
inline constexpr int kPeriodBullet = 0x100;
inline constexpr int kStandardBullet = 0x200;

}  // namespace mindloft::Corvane
