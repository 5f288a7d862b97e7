#include "backend/corvane/document/HtmlReader.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "backend/corvane/document/DocumentCleaner.h"
#include "backend/corvane/document/DocumentHtml.h"
#include "backend/corvane/document/DocumentLimits.h"
#include "backend/corvane/document/DocumentXml.h"
#include "backend/corvane/document/HtmlStyle.h"
#include "platform/Unicode.h"

namespace mindloft::Corvane {
namespace {

constexpr std::size_t kMostOpen = 64;
constexpr int kListIndent = 60;                 ///< tenths of a millimetre
constexpr const char* kBlackBorder = "1,4098";  ///< a pixel

/// What an element by itself says of its texts.
constexpr std::pair<std::string_view, std::string_view> kStyleOfElement[] = {
    {"b", "font-weight:bold"},
    {"strong", "font-weight:bold"},
    {"i", "font-style:italic"},
    {"em", "font-style:italic"},
    {"u", "text-decoration:underline"},
    {"ins", "text-decoration:underline"},
    {"s", "text-decoration:line-through"},
    {"del", "text-decoration:line-through"},
    {"sup", "vertical-align:super"},
    {"sub", "vertical-align:sub"},
    {"span", ""},
    {"font", ""},
    {"code", "font-family:monospace"},
    {"th", "font-weight:bold"}};

constexpr std::pair<std::string_view, const char*> kStyleOfParagraph[] = {{"p", ""},
                                                                          {"div", ""},
                                                                          {"pre", ""},
                                                                          {"address", ""},
                                                                          {"section", ""},
                                                                          {"article", ""},
                                                                          {"h1", "Heading 1"},
                                                                          {"h2", "Heading 2"},
                                                                          {"h3", "Heading 3"},
                                                                          {"h4", "Heading 3"},
                                                                          {"h5", "Heading 3"},
                                                                          {"h6", "Heading 3"},
                                                                          {"blockquote", "Quotation"},
                                                                          {"dt", ""},
                                                                          {"dd", ""}};

/// As the editor's styles look in a text of ten points.
std::string_view LookOfStyle(std::string_view style) {
  if (style == "Heading 1") return "font-size:18pt;font-weight:bold";
  if (style == "Heading 2") return "font-size:14pt;font-weight:bold";
  if (style == "Heading 3") return "font-size:12pt;font-weight:bold";
  return "font-style:italic";
}

template <typename Table>
auto FindIn(const Table& table, std::string_view name) {
  return std::find_if(std::begin(table), std::end(table),
                      [&](const auto& each) { return each.first == name; });
}

}  // namespace

HtmlReader::HtmlReader(pugi::xml_node layout) : layout_(layout), box_(layout) {}

void HtmlReader::Add(const HtmlToken& token) {
  if (token.kind == HtmlToken::Kind::Text)
    AddText(token.text);
  else if (token.kind == HtmlToken::Kind::Start)
    Start(token);
  else
    Close(token.name);
}

void HtmlReader::End() {
  while (!tables_.empty()) EndTable();
}

void HtmlReader::Start(const HtmlToken& token) {
  const std::string& name = token.name;
  if (name == "body") {
    ReadHtmlStyle(token.Attribute("style"), layout_);
  } else if (name == "br") {
    auto lineBreak = Paragraph().append_child("symbol");
    lineBreak.text().set(kLineBreakSymbol);
    endsInBlank_ = true;
  } else if (name == "ul" || name == "ol") {
    StartList(token);
  } else if (name == "li") {
    StartItem(token);
  } else if (name == "table") {
    StartTable(token);
  } else if (name == "tr") {
    if (!tables_.empty()) FillRow(tables_.back());
  } else if (name == "td" || name == "th") {
    StartCell(token);
  } else if (FindIn(kStyleOfParagraph, name) != std::end(kStyleOfParagraph)) {
    StartParagraph(token);
  } else if (FindIn(kStyleOfElement, name) != std::end(kStyleOfElement)) {
    Push(token);
  }
}

void HtmlReader::Close(const std::string& name) {
  if (name == "ul" || name == "ol") {
    if (!lists_.empty()) lists_.pop_back();
    paragraph_ = {};
  } else if (name == "table") {
    if (!tables_.empty()) EndTable();
  } else if (name == "li" || name == "td" || name == "th" || name == "tr" ||
             FindIn(kStyleOfParagraph, name) != std::end(kStyleOfParagraph)) {
    paragraph_ = {};
    Pop(name);
  } else {
    Pop(name);
  }
}

void HtmlReader::Push(const HtmlToken& token) {
  if (formats_.size() >= kMostOpen) return;
  std::string style;
  const auto known = FindIn(kStyleOfElement, token.name);
  if (known != std::end(kStyleOfElement)) style = known->second;
  const auto color = token.Attribute("color");
  const auto face = token.Attribute("face");
  if (!color.empty()) style += ";color:" + color;
  if (!face.empty()) style += ";font-family:" + face;
  formats_.push_back({token.name, style + ';' + token.Attribute("style")});
}

void HtmlReader::Pop(const std::string& name) {
  const std::size_t first = tables_.empty() ? 0 : tables_.back().formats;
  for (std::size_t i = formats_.size(); i-- > first;) {
    if (formats_[i].name != name) continue;
    formats_.erase(formats_.begin() + static_cast<std::ptrdiff_t>(i));
    return;
  }
}

pugi::xml_node HtmlReader::Paragraph() {
  if (!paragraph_) {
    paragraph_ = box_.append_child("paragraph");
    endsInBlank_ = true;
  }
  return paragraph_;
}

void HtmlReader::AddText(const std::string& text) {
  // Between the parts of a table is no text.
  if (!tables_.empty() && box_ == tables_.back().table) return;
  std::string shown;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char each = text[i];
    if (each == ' ' || each == '\t' || each == '\r' || each == '\n') {
      if (!endsInBlank_) shown += ' ';
      endsInBlank_ = true;
    } else if (text.compare(i, 2, "\xC2\xA0") == 0) {
      shown += ' ';
      ++i;
    } else if (text.compare(i, 3, "\xE2\x80\x83") == 0) {
      shown += '\t';
      i += 2;
    } else {
      shown += each;
      endsInBlank_ = false;
    }
  }
  if (shown.empty() || (!paragraph_ && shown == " ")) return;
  auto run = Paragraph().append_child("text");
  for (const Format& format : formats_) ReadHtmlStyle(format.style, run);
  // What a run cannot have is its paragraph's.
  for (const char* name : {"alignment", "leftindent", "leftsubindent", "rightindent", "parspacingbefore",
                           "parspacingafter", "pagebreak"})
    run.remove_attribute(name);
  run.text().set(QuotedRun(shown).c_str());
}

void HtmlReader::StartParagraph(const HtmlToken& token) {
  // The first paragraph of a list's item is the item.
  const bool isItem = paragraph_ && paragraph_.attribute("bulletstyle") && !paragraph_.first_child();
  if (!isItem) paragraph_ = {};
  auto paragraph = Paragraph();
  const auto known = FindIn(kStyleOfParagraph, token.name);
  if (known != std::end(kStyleOfParagraph) && *known->second) {
    SetAttribute(paragraph, "parstyle", known->second);
    ReadHtmlStyle(LookOfStyle(known->second), paragraph);
  }
  const auto align = token.Attribute("align");
  ReadHtmlStyle((align.empty() ? "" : "text-align:" + align + ';') + token.Attribute("style"), paragraph);
}

void HtmlReader::StartList(const HtmlToken& token) {
  paragraph_ = {};
  if (lists_.size() >= kMostOpen) return;
  List list{token.name == "ol", token.Attribute("type"), std::atoi(token.Attribute("start").c_str())};
  if (list.next < 1) list.next = 1;
  lists_.push_back(list);
}

void HtmlReader::StartItem(const HtmlToken& token) {
  paragraph_ = {};
  auto paragraph = Paragraph();
  List plain;
  List& list = lists_.empty() ? plain : lists_.back();
  const auto depth = static_cast<int>(std::max<std::size_t>(lists_.size(), 1));
  int bullet = kStandardBullet;
  if (list.isNumbered) {
    bullet = kPeriodBullet + (list.numbering == "a" || list.numbering == "A"   ? kLetterBullet
                              : list.numbering == "i" || list.numbering == "I" ? kRomanBullet
                                                                               : kNumberedBullet);
    SetAttribute(paragraph, "bulletnumber", std::to_string(list.next++));
  } else {
    SetAttribute(paragraph, "bulletname", "standard/circle");
  }
  SetAttribute(paragraph, "leftindent", std::to_string(kListIndent * (depth - 1)));
  SetAttribute(paragraph, "leftsubindent", std::to_string(kListIndent));
  SetAttribute(paragraph, "bulletstyle", std::to_string(bullet));
  ReadHtmlStyle(token.Attribute("style"), paragraph);
}

void HtmlReader::StartTable(const HtmlToken& token) {
  if (tables_.size() >= static_cast<std::size_t>(kMostTableDepth)) return;
  paragraph_ = {};
  auto table = box_.append_child("paragraph").append_child("table");
  const std::string style = token.Attribute("style");
  const auto width = style.find("width:");
  if (width != std::string::npos) {
    const int perCent = std::atoi(style.c_str() + width + std::string_view("width:").size());
    if (perCent > 0 && perCent <= 100 && style.find('%', width) != std::string::npos)
      SetAttribute(table, "width", std::to_string(perCent) + ",4100");
  }
  tables_.push_back({table, box_, formats_.size()});
  box_ = table;
}

void HtmlReader::FillRow(Table& table) {
  paragraph_ = {};
  box_ = table.table;
  formats_.resize(std::min(formats_.size(), table.formats));
  table.columns = std::max(table.columns, table.column);
  if (table.column > 0) SetAttribute(table.table.last_child(), "end", "1");
  table.column = 0;
}

void HtmlReader::StartCell(const HtmlToken& token) {
  if (tables_.empty()) return StartParagraph(token);
  Table& table = tables_.back();
  paragraph_ = {};
  formats_.resize(std::min(formats_.size(), table.formats));
  if (table.column == 0) ++table.rows;
  ++table.column;
  box_ = table.table.append_child("cell");
  const std::string style = token.Attribute("style");
  ReadHtmlStyle(style, box_);
  if (style.find("border:") != std::string::npos && style.find("border:none") == std::string::npos) {
    const auto color = style.find("solid #");
    const std::string colour = color == std::string::npos ? "#000000" : style.substr(color + 6, 7);
    for (const std::string side : {"border-left-", "border-right-", "border-top-", "border-bottom-"}) {
      SetAttribute(box_, (side + "style").c_str(), "1");
      SetAttribute(box_, (side + "color").c_str(), colour);
      SetAttribute(box_, (side + "width").c_str(), kBlackBorder);
    }
  }
  // The style is the cell's; a heading's weight is its texts'.
  if (token.name == "th") formats_.push_back({token.name, "font-weight:bold"});
}

/// Gives every row as many cells as the longest has.
void HtmlReader::EndTable() {
  Table table = tables_.back();
  FillRow(table);
  tables_.pop_back();
  box_ = table.outerBox;
  formats_.resize(std::min(formats_.size(), table.formats));
  if (table.rows > kMostTableRows || table.columns > kMostColumns) table.columns = 0;
  int column = 0;
  for (auto cell = table.table.first_child(); cell && table.columns > 0; cell = cell.next_sibling()) {
    ++column;
    if (!cell.attribute("end")) continue;
    cell.remove_attribute("end");
    for (; column < table.columns; ++column) cell = table.table.insert_child_after("cell", cell);
    column = 0;
  }
  SetAttribute(table.table, "rows", std::to_string(table.rows));
  SetAttribute(table.table, "cols", std::to_string(table.columns));
  if (table.rows == 0) box_.remove_child(table.table.parent());
  paragraph_ = {};
}

SafeDocument DocumentOfHtml(std::string_view html) {
  if (html.size() > kMostDocumentBytes) return {SanitizeDocument({}).xml, DocumentState::TooLarge};
  const std::string clean = platform::CleanUtf8(html);
  pugi::xml_document document;
  HtmlReader reader(AddDocumentRoot(document).append_child("paragraphlayout"));
  HtmlTokens tokens(clean);
  for (HtmlToken token; tokens.Next(token);) reader.Add(token);
  reader.End();
  return SanitizeDocument(WriteDocument(document));
}

}  // namespace mindloft::Corvane
