#pragma once

#include <wx/bmpbndl.h>
#include <wx/string.h>

#include "controls/bag/PropertyText.h"

namespace mindloft {

/// A picture of a control: one of the program's own drawings, which a property bag keeps by its name, or any
/// other one, which is shown but not kept.
class ControlPicture {
 public:
  ControlPicture() = default;
  /// The drawing of that name (LoadImage); throws when there is none. An empty name is no picture.
  explicit ControlPicture(const wxString& name);
  explicit ControlPicture(const wxBitmapBundle& drawing) : drawing_(drawing) {}

  bool IsOk() const { return drawing_.IsOk(); }
  /// Empty for a picture that is not kept.
  const wxString& Name() const { return name_; }
  /// In pixels at 96 dpi; nothing without a picture.
  wxSize OwnSize() const;
  /// Stretched to that size, in physical pixels.
  wxBitmap Stretched(const wxSize& size) const;

 private:
  wxString name_;
  wxBitmapBundle drawing_;
};

/// The picture's name.
template <>
struct PropertyText<ControlPicture> {
  static wxString Format(const ControlPicture& value) { return value.Name(); }
  static ControlPicture Parse(const wxString& text) { return ControlPicture(text); }
};

}  // namespace mindloft
