#pragma once

#include <wx/string.h>

#include <functional>

namespace mindloft {

/// Where a character of a drawn line stands, from the line's left edge.
struct CharacterPlace {
  int left = 0;
  int width = 0;
};

/// `rightToLeft` is the direction of the whole line; parts of it run as their letters do. `widthOf` measures.
CharacterPlace PlaceOfCharacter(const wxString& line, std::size_t index, bool rightToLeft,
                                const std::function<int(const wxString&)>& widthOf);

}  // namespace mindloft
