#include "controls/buttons/CharacterPlace.h"

#include "platform/TextDirection.h"

namespace mindloft {
namespace {

using platform::TextDirection;

/// The nearest direction from there on, going by `step`; that of the line at its ends.
TextDirection Nearest(const wxString& line, std::size_t index, int step, TextDirection whole) {
  for (; index < line.length(); index += static_cast<std::size_t>(step)) {
    const TextDirection own = platform::DirectionOf(line[index].GetValue());
    if (own != TextDirection::Neutral) return own;
  }
  return whole;
}

/// What stands between two parts of one direction belongs to them, else to the line.
TextDirection DirectionAt(const wxString& line, std::size_t index, TextDirection whole) {
  const TextDirection before = Nearest(line, index, -1, whole);
  return before == Nearest(line, index, 1, whole) ? before : whole;
}

}  // namespace

CharacterPlace PlaceOfCharacter(const wxString& line, std::size_t index, bool rightToLeft,
                                const std::function<int(const wxString&)>& widthOf) {
  const TextDirection whole = rightToLeft ? TextDirection::RightToLeft : TextDirection::LeftToRight;
  const TextDirection own = DirectionAt(line, index, whole);
  // The part that runs as the character does: all other parts stand wholly beside it.
  std::size_t begin = index, end = index + 1;
  while (begin > 0 && DirectionAt(line, begin - 1, whole) == own) --begin;
  while (end < line.length() && DirectionAt(line, end, whole) == own) ++end;

  const int before = widthOf(line.Left(begin));
  const int part = widthOf(line.Left(end)) - before;
  const int partLeft = rightToLeft ? widthOf(line) - before - part : before;
  const int inside = widthOf(line.Mid(begin, index - begin));
  const int width = widthOf(line.Mid(begin, index + 1 - begin)) - inside;
  return {partLeft + (own == TextDirection::RightToLeft ? part - inside - width : inside), width};
}

}  // namespace mindloft
