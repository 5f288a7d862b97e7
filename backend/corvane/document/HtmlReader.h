#pragma once

#include <pugixml.hpp>
#include <string>
#include <vector>

#include "backend/corvane/document/HtmlTokens.h"

namespace mindloft::Corvane {

/// Builds a document of an HTML text's tokens, below the box that it is given. What it builds still has to be
/// made safe.
class HtmlReader {
 public:
  explicit HtmlReader(pugi::xml_node layout);
  void Add(const HtmlToken& token);
  /// After the last token.
  void End();

 private:
  /// An open element that has a format: what its texts and paragraphs are to look like.
  struct Format {
    std::string name;
    std::string style;
  };
  /// A table that is being read, and where its text goes on after it.
  struct Table {
    pugi::xml_node table;
    pugi::xml_node outerBox;
    std::size_t formats = 0;
    int rows = 0;
    int columns = 0;
    int column = 0;
  };
  struct List {
    bool isNumbered = false;
    std::string numbering;
    int next = 1;
  };

  void Start(const HtmlToken& token);
  void Close(const std::string& name);
  void AddText(const std::string& text);
  void StartParagraph(const HtmlToken& token);
  void StartItem(const HtmlToken& token);
  void StartList(const HtmlToken& token);
  void StartTable(const HtmlToken& token);
  void StartCell(const HtmlToken& token);
  void EndTable();
  void FillRow(Table& table);
  pugi::xml_node Paragraph();
  void Push(const HtmlToken& token);
  void Pop(const std::string& name);

  pugi::xml_node layout_;
  pugi::xml_node box_;        ///< the main text or the cell that grows
  pugi::xml_node paragraph_;  ///< none: the next text begins one
  std::vector<Format> formats_;
  std::vector<List> lists_;
  std::vector<Table> tables_;
  bool endsInBlank_ = true;
};

}  // namespace mindloft::Corvane
