#include "controls/FontFaces.h"

#include <wx/choice.h>
#include <wx/fontenum.h>

namespace mindloft {

const wxArrayString& InstalledFaces() {
  static const wxArrayString faces = [] {
    wxArrayString found;
    for (const wxString& face : wxFontEnumerator::GetFacenames()) {
      // Faces for vertical text begin with an at sign.
      if (!face.StartsWith("@")) found.Add(face);
    }
    found.Sort();
    return found;
  }();
  return faces;
}

void OfferFaces(wxChoice& box) {
  box.Set(InstalledFaces());
}

void ShowFace(wxChoice& box, const wxString& face) {
  if (box.GetStringSelection() == face) return;
  if (box.GetCount() > InstalledFaces().size()) box.Delete(0);
  if (face.empty()) {
    box.SetSelection(wxNOT_FOUND);
  } else if (!box.SetStringSelection(face)) {
    box.Insert(face, 0);
    box.SetSelection(0);
  }
}

}  // namespace mindloft
