#include "controls/richtext/RulerModel.h"

#include <algorithm>

namespace mindloft {
namespace {

constexpr int kLeastLine = 100;
constexpr double kCentimetre = 100;
constexpr double kInch = 254;
constexpr double kLeastStep = 24;  ///< pixels

}  // namespace

void RulerModel::SetWidth(int tenths) {
  width_ = std::max(1, tenths);
}

void RulerModel::SetIndents(int firstLine, int left, int right) {
  firstLine_ = firstLine;
  left_ = left;
  right_ = right;
}

void RulerModel::SetTabs(std::vector<int> tabs) {
  std::sort(tabs.begin(), tabs.end());
  tabs_ = std::move(tabs);
}

void RulerModel::Move(RulerMark mark, int tab, int place) {
  const int farthest = std::max(0, width_ - right_ - kLeastLine);
  switch (mark) {
    case RulerMark::FirstLine:
      firstLine_ = std::clamp(place, 0, farthest);
      break;
    case RulerMark::Left: {
      // The first line keeps its distance, as far as the edge lets it.
      const int distance = firstLine_ - left_;
      left_ = std::clamp(place, 0, farthest);
      firstLine_ = std::clamp(left_ + distance, 0, farthest);
      break;
    }
    case RulerMark::Right:
      right_ = std::clamp(width_ - place, 0, std::max(0, width_ - std::max(left_, firstLine_) - kLeastLine));
      break;
    case RulerMark::Tab:
      if (tab >= 0 && tab < static_cast<int>(tabs_.size())) {
        place = std::clamp(place, 1, width_);
        const auto index = static_cast<std::size_t>(tab);
        // Its neighbours keep their order, so that its index stays its own.
        const int lowest = index > 0 ? tabs_[index - 1] + 1 : 1;
        const int highest = index + 1 < tabs_.size() ? tabs_[index + 1] - 1 : width_;
        if (lowest <= highest) tabs_[index] = std::clamp(place, lowest, highest);
      }
      break;
    case RulerMark::None:
      break;
  }
}

int RulerModel::AddTab(int place) {
  place = std::clamp(place, 1, width_);
  const auto found = std::lower_bound(tabs_.begin(), tabs_.end(), place);
  const auto index = static_cast<int>(found - tabs_.begin());
  if (found == tabs_.end() || *found != place) tabs_.insert(found, place);
  return index;
}

void RulerModel::RemoveTab(int tab) {
  if (tab >= 0 && tab < static_cast<int>(tabs_.size())) tabs_.erase(tabs_.begin() + tab);
}

int RulerModel::PlaceOf(RulerMark mark, int tab) const {
  switch (mark) {
    case RulerMark::FirstLine:
      return firstLine_;
    case RulerMark::Left:
      return left_;
    case RulerMark::Right:
      return width_ - right_;
    case RulerMark::Tab:
      return tabs_.at(static_cast<std::size_t>(tab));
    case RulerMark::None:
      break;
  }
  return 0;
}

RulerScale ScaleOf(bool inches, double pixelsPerTenth) {
  RulerScale scale{inches ? kInch : kCentimetre, inches ? 8 : 2, inches ? kInch : kCentimetre};
  if (pixelsPerTenth <= 0) return scale;
  // 1, 2, 5, 10, 20, ...
  constexpr double kNext[] = {2, 2.5, 2};
  for (int i = 0; scale.step * pixelsPerTenth < kLeastStep; ++i) {
    scale.step *= kNext[i % 3];
    scale.parts = 2;
  }
  return scale;
}

}  // namespace mindloft
