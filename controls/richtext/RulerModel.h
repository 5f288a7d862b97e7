#pragma once

#include <vector>

namespace mindloft {

/// What can be dragged on a ruler.
enum class RulerMark { None, FirstLine, Left, Right, Tab };

/// The indents and tab stops of a paragraph, in tenths of a millimetre: from the left edge of the text's
/// area, the right indent from its right edge. Knows which values are possible; draws nothing.
class RulerModel {
 public:
  /// An area of no width or less is one of a tenth of a millimetre.
  void SetWidth(int tenths);
  int Width() const { return width_; }

  int FirstLine() const { return firstLine_; }  ///< of the first line
  int Left() const { return left_; }            ///< of the other lines
  int Right() const { return right_; }
  const std::vector<int>& Tabs() const { return tabs_; }
  void SetIndents(int firstLine, int left, int right);
  void SetTabs(std::vector<int> tabs);

  /// Moves a mark to a place from the left edge; a tab stop is named by its index. Between both indents stay
  /// at least ten millimetres. A tab stop that another one stands on is not moved there.
  void Move(RulerMark mark, int tab, int place);
  /// Returns the index of the tab stop at the place, which is added when there is none.
  int AddTab(int place);
  void RemoveTab(int tab);
  /// The mark's place from the left edge.
  int PlaceOf(RulerMark mark, int tab) const;

 private:
  int width_ = 1;
  int firstLine_ = 0;
  int left_ = 0;
  int right_ = 0;
  std::vector<int> tabs_;
};

/// The distance of a ruler's marks (numbered ones and those between them) in tenths of a millimetre.
struct RulerScale {
  double step = 0;         ///< between two numbers
  int parts = 1;           ///< from one number to the next
  double tenthsOfOne = 0;  ///< what the number 1 stands for
};
/// Centimetres, or inches where people measure with these. The steps leave room for the numbers at that size
/// of a tenth of a millimetre in pixels.
RulerScale ScaleOf(bool inches, double pixelsPerTenth);

}  // namespace mindloft
