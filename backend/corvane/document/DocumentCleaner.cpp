#include "backend/corvane/document/DocumentCleaner.h"

#include <cstring>
#include <string_view>

#include "backend/corvane/document/DocumentLimits.h"
#include "platform/Unicode.h"

namespace mindloft::Corvane {
namespace {

constexpr int kFirstPrintable = 0x20;
constexpr int kDelete = 0x7F;
constexpr int kFirstHighSurrogate = 0xD800;
constexpr int kFirstLowSurrogate = 0xDC00;
constexpr int kAfterSurrogates = 0xE000;
constexpr int kLastCharacter = 0x10FFFF;

bool Is(const pugi::xml_node& node, const char* name) {
  return node.type() == pugi::node_element && std::strcmp(node.name(), name) == 0;
}

bool IsElement(const pugi::xml_node& node) {
  return node.type() == pugi::node_element;
}

/// Without the control characters that neither XML nor the component can hold. Tabulators stay.
std::string Printable(std::string_view text) {
  std::string printable;
  for (const char each : platform::CleanUtf8(text)) {
    const auto code = static_cast<unsigned char>(each);
    if ((code >= kFirstPrintable && code != kDelete) || each == '\t') printable += each;
  }
  return printable;
}

std::string Utf8Of(char32_t character) {
  const auto high = static_cast<char16_t>(kFirstHighSurrogate + ((character - 0x10000) >> 10));
  const auto low = static_cast<char16_t>(kFirstLowSurrogate + ((character - 0x10000) & 0x3FF));
  const char16_t units[] = {high, low};
  if (character >= 0x10000) return platform::Utf8FromUtf16({units, 2});
  const auto unit = static_cast<char16_t>(character);
  return platform::Utf8FromUtf16({&unit, 1});
}

/// The value as the component writes it: its reader takes the digits of colours as capitals only.
std::string AsWritten(const pugi::xml_attribute& attribute) {
  std::string value = attribute.value();
  const bool isColour = std::string_view(attribute.name()).ends_with("color");
  for (char& each : value) {
    if (isColour && each >= 'a' && each <= 'f') each = static_cast<char>(each - 'a' + 'A');
  }
  return value;
}

bool HaveSameAttributes(const pugi::xml_node& one, const pugi::xml_node& other) {
  auto left = one.first_attribute();
  auto right = other.first_attribute();
  for (; left && right; left = left.next_attribute(), right = right.next_attribute()) {
    if (std::strcmp(left.name(), right.name()) != 0 || std::strcmp(left.value(), right.value()) != 0)
      return false;
  }
  return !left && !right;
}

}  // namespace

std::string TextOfRun(const pugi::xml_node& run) {
  std::string text;
  for (const auto& part : run.children()) {
    if (part.type() != pugi::node_pcdata && part.type() != pugi::node_cdata) continue;
    std::string_view content = part.value();
    if (content.ends_with('\n')) content.remove_suffix(1);
    if (content.starts_with('"')) content.remove_prefix(1);
    if (content.ends_with('"')) content.remove_suffix(1);
    text += content;
  }
  return text;
}

std::string QuotedRun(const std::string& text) {
  return text.empty() ? text : '"' + text + '"';
}

bool DocumentCleaner::CopyDocument(const pugi::xml_node& richtext, pugi::xml_node target) {
  pugi::xml_node main;
  for (const auto& child : richtext.children()) {
    if (Is(child, "paragraphlayout") && !main)
      main = child;
    else if (IsElement(child))
      isReduced_ = true;
  }
  if (!main) return false;
  auto layout = target.append_child("paragraphlayout");
  CopyAttributes(main, layout, AttributeOwner::Box);
  CopyParagraphs(main, layout, 0);
  return true;
}

void DocumentCleaner::CopyParagraphs(const pugi::xml_node& box, pugi::xml_node target, int tableDepth) {
  for (const auto& child : box.children()) {
    if (!IsElement(child)) continue;
    if (!CountParagraph()) return;
    auto paragraph = target.append_child("paragraph");
    if (Is(child, "paragraph")) {
      CopyParagraph(child, paragraph, tableDepth);
    } else {
      KeepTextOf(child, paragraph);
      EndRun();
      if (!paragraph.first_child()) paragraph.append_child("text");
    }
  }
  // The component cannot show a box without a paragraph.
  if (!target.first_child()) target.append_child("paragraph").append_child("text");
}

bool DocumentCleaner::CountParagraph() {
  isTooLarge_ |= ++paragraphs_ > kMostParagraphs;
  return !isTooLarge_;
}

void DocumentCleaner::CopyParagraph(const pugi::xml_node& paragraph, pugi::xml_node target, int tableDepth) {
  CopyAttributes(paragraph, target, AttributeOwner::Paragraph);
  highSurrogate_.reset();
  for (const auto& child : paragraph.children()) {
    if (!IsElement(child)) continue;
    if (!Is(child, "symbol")) highSurrogate_.reset();
    if (Is(child, "text"))
      CopyRun(child, target);
    else if (Is(child, "symbol"))
      CopySymbol(child, target);
    else if (Is(child, "table") && tableDepth < kMostTableDepth)
      CopyTable(child, target, tableDepth + 1);
    else
      KeepTextOf(child, target);
  }
  EndRun();
  // An empty run is needed only where there is nothing else.
  if (!target.first_child()) target.append_child("text");
}

void DocumentCleaner::CopyRun(const pugi::xml_node& run, pugi::xml_node target) {
  for (const auto& child : run.children()) isReduced_ |= IsElement(child);
  const std::string text = TextOfRun(run);
  std::string printable = Printable(text);
  isReduced_ |= printable != text;
  AddText(target, run, printable);
}

void DocumentCleaner::CopySymbol(const pugi::xml_node& symbol, pugi::xml_node target) {
  const int code = symbol.text().as_int(-1);
  const auto high = highSurrogate_;
  highSurrogate_.reset();
  if (code == kLineBreakSymbol) {
    EndRun();
    auto lineBreak = target.append_child("symbol");
    CopyAttributes(symbol, lineBreak, AttributeOwner::Run);
    lineBreak.text().set(code);
  } else if (code >= kFirstHighSurrogate && code < kFirstLowSurrogate) {
    highSurrogate_ = code;
  } else if (code >= kFirstLowSurrogate && code < kAfterSurrogates && high) {
    const char16_t units[] = {static_cast<char16_t>(*high), static_cast<char16_t>(code)};
    AddText(target, symbol, platform::Utf8FromUtf16({units, 2}));
  } else if (code == '\t' || (code >= kFirstPrintable && code != kDelete && code <= kLastCharacter &&
                              (code < kFirstHighSurrogate || code >= kAfterSurrogates))) {
    AddText(target, symbol, Utf8Of(static_cast<char32_t>(code)));
  } else {
    isReduced_ = true;
  }
}

void DocumentCleaner::AddText(pugi::xml_node paragraph, const pugi::xml_node& attributesOf,
                              const std::string& text) {
  if (text.empty()) return;
  auto run = paragraph.append_child("text");
  CopyAttributes(attributesOf, run, AttributeOwner::Run);
  if (run_ && HaveSameAttributes(run_, run)) {
    paragraph.remove_child(run);
  } else {
    EndRun();
    run_ = run;
  }
  runText_ += text;
}

void DocumentCleaner::EndRun() {
  if (run_) run_.text().set(QuotedRun(runText_).c_str());
  run_ = {};
  runText_.clear();
}

void DocumentCleaner::CopyTable(const pugi::xml_node& table, pugi::xml_node paragraph, int tableDepth) {
  const int rows = table.attribute("rows").as_int();
  const int columns = table.attribute("cols").as_int();
  int found = 0;
  for (const auto& child : table.children()) found += Is(child, "cell") ? 1 : 0;
  const bool fits = rows > 0 && rows <= kMostTableRows && columns > 0 && columns <= kMostColumns &&
                    rows * columns == found && cells_ + static_cast<std::size_t>(found) <= kMostCells;
  if (!fits) return KeepTextOf(table, paragraph);
  cells_ += static_cast<std::size_t>(found);
  EndRun();
  auto target = paragraph.append_child("table");
  CopyAttributes(table, target, AttributeOwner::Box);
  target.append_attribute("rows") = rows;
  target.append_attribute("cols") = columns;
  for (const auto& child : table.children()) {
    if (!Is(child, "cell")) {
      isReduced_ |= IsElement(child);
      continue;
    }
    auto cell = target.append_child("cell");
    CopyAttributes(child, cell, AttributeOwner::Box);
    CopyParagraphs(child, cell, tableDepth);
  }
}

void DocumentCleaner::KeepTextOf(const pugi::xml_node& unknown, pugi::xml_node target) {
  isReduced_ = true;
  // Walked without recursion: nobody knows how deep it is.
  std::string text;
  for (auto node = unknown; node;) {
    const bool isData = Is(node, "data") || Is(node, "script") || Is(node, "style") ||
                        Is(node, "properties") || Is(node, "stylesheet") || Is(node, "symbol");
    if (Is(node, "text")) text += Printable(TextOfRun(node)) + ' ';
    if (node.first_child() && !isData && !Is(node, "text")) {
      node = node.first_child();
      continue;
    }
    while (node != unknown && !node.next_sibling()) node = node.parent();
    if (node == unknown) break;
    node = node.next_sibling();
  }
  if (!text.empty()) text.pop_back();
  AddText(target, {}, text);
}

void DocumentCleaner::CopyAttributes(const pugi::xml_node& source, pugi::xml_node target,
                                     AttributeOwner owner) {
  for (const auto& attribute : source.attributes()) {
    const std::string_view name = attribute.name();
    // A table's own two are counted, not copied.
    if (name == "rows" || name == "cols") continue;
    // Twice is no XML, but a tolerant parser reads it.
    if (IsSafeAttribute(owner, name, attribute.value()) && !target.attribute(attribute.name()))
      target.append_attribute(attribute.name()) = AsWritten(attribute).c_str();
    else
      isReduced_ = true;
  }
}

}  // namespace mindloft::Corvane
