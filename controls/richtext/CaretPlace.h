#pragma once

namespace mindloft {

class RichEditor;
struct PageSettings;

/// Where the caret is, each counted from 1.
struct CaretPlace {
  long page = 1;    ///< by the height of the text above it; tables may move a printed page's end
  long line = 1;    ///< of the main text as it is laid out
  long column = 1;  ///< characters from the line's beginning
};

CaretPlace PlaceOfCaret(const RichEditor& editor, const PageSettings& page);

}  // namespace mindloft
