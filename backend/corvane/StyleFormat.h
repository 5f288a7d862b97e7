#pragma once

#include <string>

namespace mindloft::Corvane {

/// How text of a style looks. The spacing and indent values are whole numbers as text, counted in letters
/// "a" of the style's font: widths for the indents, heights for the spacing.
struct StyleFormat {
  /// A font's face; or what every computer has some font of: "sans-serif", "serif", "monospace". Empty: the
  /// font that the program's windows have.
  std::string fontName{};
  int fontSize = 10;  ///< points, within the limits below
  bool bold = false, italic = false, underline = false, strikeThrough = false;
  std::string colour{};  ///< of the text, "#rrggbb"; empty: the desktop's
  int alignment = AlignDefault;
  std::string leftIndent = "0", rightIndent = "0";
  std::string firstLineIndent = "0";  ///< further than the left indent; negative: less far
  std::string spaceBefore = "0", spaceAfter = "0";
  /// Behind the text, "#rrggbb". Another text, or none: the desktop's.
  std::string background{};
  std::string sample{};  ///< the text that shows the style; empty: the program's own

  static constexpr int AlignDefault = 0, AlignRight = 1, AlignCentred = 2;
  static constexpr int kSmallestFont = 4, kLargestFont = 200;
  static constexpr int kLongestDistance = 100;  ///< of an indent or spacing, either way
  // Characters; with these a definition stays within what the directory stores.
  static constexpr int kLongestFontName = 64, kLongestSample = 200;

  bool operator==(const StyleFormat&) const = default;
};

}  // namespace mindloft::Corvane
