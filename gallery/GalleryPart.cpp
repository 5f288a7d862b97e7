#include "gallery/GalleryPart.h"

#include "core/forms/FormResource.h"

namespace mindloft {

GalleryPart::GalleryPart(wxWindow* parent, const wxString& name, Tell tell) : tell_(std::move(tell)) {
  FormResource::Get().Load(this, parent, name, "wxPanel");
}

void GalleryPart::TellEvent(const wxString& control, const wxString& event, const wxString& arguments) const {
  tell_(arguments.empty() ? control + ": " + event : control + ": " + event + " " + arguments);
}

}  // namespace mindloft
