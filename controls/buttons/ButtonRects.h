#pragma once

#include <wx/gdicmn.h>

#include <cstdint>

namespace mindloft {

/// What stands on a button's face, measured in physical pixels. A size of nothing: it is not there.
struct ButtonContent {
  wxSize picture;
  wxSize caption;
  int gap = 0;  ///< between the two
  std::int16_t picturePosition = 0;
  std::int16_t captionPosition = 0;

  bool IsBeside() const;  ///< picture and caption are side by side, not one above the other
  int Gap() const;        ///< nothing when only one of them is there
  wxSize Size() const;    ///< of both together
};

/// Where it stands.
struct ButtonRects {
  wxRect picture;
  wxRect caption;
};

/// Places the content on the part of the face that it may use. The picture keeps its size; the caption gets
/// what is left of its own.
ButtonRects CalcRECTs(const wxRect& inside, const ButtonContent& content, bool mirrored);

}  // namespace mindloft
