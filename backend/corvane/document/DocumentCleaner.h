#pragma once

#include <cstddef>
#include <optional>
#include <pugixml.hpp>
#include <string>

#include "backend/corvane/document/DocumentAttributes.h"

namespace mindloft::Corvane {

/// Copies what a document may hold from one tree into another, in one way of writing it: texts in runs as
/// long as possible, each between quotation marks (the component takes one off at each end).
class DocumentCleaner {
 public:
  /// Puts the main text of the "richtext" element below `target`; false when it has none.
  bool CopyDocument(const pugi::xml_node& richtext, pugi::xml_node target);

  /// Something was left out.
  bool IsReduced() const { return isReduced_; }
  /// There was more than a document may hold.
  bool IsTooLarge() const { return isTooLarge_; }

 private:
  void CopyParagraphs(const pugi::xml_node& box, pugi::xml_node target, int tableDepth);
  void CopyParagraph(const pugi::xml_node& paragraph, pugi::xml_node target, int tableDepth);
  void CopyTable(const pugi::xml_node& table, pugi::xml_node paragraph, int tableDepth);
  void CopyRun(const pugi::xml_node& run, pugi::xml_node target);
  void CopySymbol(const pugi::xml_node& symbol, pugi::xml_node target);
  void KeepTextOf(const pugi::xml_node& unknown, pugi::xml_node target);
  void AddText(pugi::xml_node paragraph, const pugi::xml_node& attributesOf, const std::string& text);
  void CopyAttributes(const pugi::xml_node& source, pugi::xml_node target, AttributeOwner owner);
  void EndRun();
  bool CountParagraph();

  bool isReduced_ = false;
  bool isTooLarge_ = false;
  std::size_t paragraphs_ = 0;
  std::size_t cells_ = 0;
  /// The run that grows, and its text.
  pugi::xml_node run_;
  std::string runText_;
  /// The first half of a character that a writer has parted into two symbols.
  std::optional<int> highSurrogate_;
};

/// The text of a run as it stands between its tags, without the component's quotation marks.
std::string TextOfRun(const pugi::xml_node& run);
/// The text as the component's reader gets it back.
std::string QuotedRun(const std::string& text);

/// The symbol by which the component writes a line break inside a paragraph.
inline constexpr int kLineBreakSymbol = 29;

}  // namespace mindloft::Corvane
