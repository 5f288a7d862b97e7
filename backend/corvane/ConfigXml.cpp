#include "backend/corvane/ConfigXml.h"

#include <utf8proc.h>

#include <algorithm>
#include <sstream>

#include "backend/corvane/ConfigPath.h"
#include "backend/corvane/Trimmed.h"
#include "backend/errors/Error.h"

namespace mindloft::Corvane {
namespace {

constexpr const char* kRoot = "UserConfiguration";

/// Whether the text is good UTF-8 of characters that XML 1.0 allows (section 2.2 of that recommendation).
bool IsXmlText(std::string_view text) {
  auto at = reinterpret_cast<const utf8proc_uint8_t*>(text.data());
  auto left = static_cast<utf8proc_ssize_t>(text.size());
  while (left > 0) {
    utf8proc_int32_t c = 0;
    const auto length = utf8proc_iterate(at, left, &c);
    if (length <= 0) return false;
    if (c < 0x20 && c != '\t' && c != '\n' && c != '\r') return false;
    if (c == 0xFFFE || c == 0xFFFF) return false;
    at += length;
    left -= length;
  }
  return true;
}

[[noreturn]] void ThrowDamaged(const std::string& why) {
  throw Error(ErrorNumber::ConfigurationDamaged, why);
}

[[noreturn]] void ThrowExpression(const std::string& why, const std::string& expression) {
  throw Error(ErrorNumber::InvalidExpression, why + ";" + expression.substr(0, 300));
}

bool Fits(const pugi::xml_node& element, const ConfigPath::Step& step) {
  return element.name() == step.element &&
         std::all_of(step.conditions.begin(), step.conditions.end(), [&](const auto& condition) {
           const auto attribute = element.attribute(condition.attribute.c_str());
           return attribute && attribute.value() == condition.text;
         });
}

pugi::xml_node AppendStep(pugi::xml_node parent, const ConfigPath::Step& step) {
  auto element = parent.append_child(step.element.c_str());
  for (const auto& condition : step.conditions) {
    element.append_attribute(condition.attribute.c_str()).set_value(condition.text.c_str());
  }
  return element;
}

}  // namespace

ConfigXml::ConfigXml(std::string_view xml) {
  if (Trimmed(xml).empty()) {
    root_ = document_.append_child(kRoot);
    return;
  }
  // The parser ends at a zero byte and lets broken characters pass.
  if (!IsXmlText(xml)) ThrowDamaged("characters that XML does not allow");
  // Nothing of what somebody else has written may go when it is stored again: comments and spaces stay.
  const auto result = document_.load_buffer(xml.data(), xml.size(), pugi::parse_full | pugi::parse_ws_pcdata,
                                            pugi::encoding_utf8);
  if (!result) ThrowDamaged(std::string(result.description()) + " at " + std::to_string(result.offset));
  for (const auto& node : document_) {
    if (node.type() != pugi::node_element) continue;
    if (root_) ThrowDamaged("more than one document element");
    root_ = node;
  }
  if (root_.name() != std::string_view(kRoot)) ThrowDamaged("another document element");
}

pugi::xml_attribute ConfigXml::Find(const std::string& expression) const {
  if (expression.size() > kMaximumExpression) ThrowExpression("too long", expression);
  // Without this a zero byte would cut the expression short, to one that means something else.
  if (!IsXmlText(expression)) ThrowExpression("characters that XML does not allow", {});
  try {
    const auto selected = pugi::xpath_query(expression.c_str()).evaluate_node(root_);
    if (selected && !selected.attribute()) ThrowExpression("no attribute", expression);
    return selected.attribute();
  } catch (const pugi::xpath_exception& error) {
    ThrowExpression(error.what(), expression);
  }
}

std::optional<std::string> ConfigXml::Select(const std::string& expression) const {
  const auto attribute = Find(expression);
  if (!attribute) return {};
  return attribute.value();
}

pugi::xml_attribute ConfigXml::Create(const std::string& expression) {
  const auto path = ConfigPath::Parse(expression);
  if (!path) ThrowExpression("selects nothing and cannot be created from", expression);
  auto step = path->steps.begin();
  if (path->absolute && !Fits(root_, *step++)) ThrowExpression("another document element", expression);
  auto element = root_;
  for (; step != path->steps.end(); ++step) {
    const auto child = element.find_child([&](const pugi::xml_node& node) { return Fits(node, *step); });
    element = child ? child : AppendStep(element, *step);
  }
  return element.append_attribute(path->attribute.c_str());
}

void ConfigXml::Set(const std::string& expression, const std::string& text) {
  auto attribute = Find(expression);
  const bool created = !attribute;
  if (created) attribute = Create(expression);
  if (!IsXmlText(text)) throw Error(ErrorNumber::TextInvalid, expression.substr(0, 300), {attribute.name()});
  attribute.set_value(text.c_str());
  // Conditions may contradict each other or the text: what was made must be what will be found.
  if (created && Find(expression) != attribute) ThrowExpression("contradicts itself", expression);
}

std::string ConfigXml::Text() const {
  std::ostringstream stream;
  document_.save(stream, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
  auto text = std::move(stream).str();
  if (text.size() > kMaximumSize) {
    throw Error(ErrorNumber::TextTooLong, std::to_string(text.size()) + " bytes",
                {kRoot, std::to_string(kMaximumSize)});
  }
  return text;
}

}  // namespace mindloft::Corvane
