#pragma once

#include <wx/frame.h>

#include <functional>

#include "gallery/GalleryPart.h"

namespace mindloft {

/// One kind of control on a page of its own, for those that need much room.
class frmOnePart : public wxFrame {
 public:
  using MakePart = std::function<GalleryPart*(wxWindow* parent, GalleryPart::Tell tell)>;

  explicit frmOnePart(const MakePart& makePart);
};

/// A page with a part of that class.
template <typename Part>
frmOnePart* PageOf() {
  return new frmOnePart(
      [](wxWindow* parent, GalleryPart::Tell tell) { return new Part(parent, std::move(tell)); });
}

}  // namespace mindloft
