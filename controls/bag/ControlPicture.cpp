#include "controls/bag/ControlPicture.h"

#include <wx/image.h>

#include <algorithm>

#include "backend/errors/Error.h"
#include "backend/tessaline/Text.h"
#include "core/forms/Images.h"

namespace mindloft {
namespace {

/// The size that drawings have without one told: that of the console's large icons.
constexpr int kOwnSize = 32;

}  // namespace

ControlPicture::ControlPicture(const wxString& name) : name_(name) {
  if (name.empty()) return;
  drawing_ = LoadImage(name, kOwnSize);
  if (!drawing_.IsOk())
    throw Error(ErrorNumber::TypeMismatch, "there is no picture \"" + ToUtf8(name) + "\"");
}

wxSize ControlPicture::OwnSize() const {
  return IsOk() ? drawing_.GetDefaultSize() : wxSize(0, 0);
}

wxBitmap ControlPicture::Stretched(const wxSize& size) const {
  if (!IsOk() || size.x <= 0 || size.y <= 0) return {};
  // A drawing keeps its proportions: it is drawn so large that stretching never has to enlarge it.
  const wxSize own = OwnSize();
  const double scale = std::max(static_cast<double>(size.x) / own.x, static_cast<double>(size.y) / own.y);
  const wxSize drawn(wxRound(own.x * scale), wxRound(own.y * scale));
  const wxBitmap bitmap = drawing_.GetBitmap(drawn);
  if (bitmap.GetSize() == size) return bitmap;
  return wxBitmap(bitmap.ConvertToImage().Scale(size.x, size.y, wxIMAGE_QUALITY_HIGH));
}

}  // namespace mindloft
