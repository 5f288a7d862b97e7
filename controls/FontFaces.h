#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

class wxChoice;

namespace mindloft {

/// What this computer can write with, by name; without the faces for text that runs downwards. Asked for
/// once: some systems take long.
const wxArrayString& InstalledFaces();

/// Offers the installed faces in an empty box.
void OfferFaces(wxChoice& box);
/// Shows the face in a box of theirs. One that is not installed, or is a name that only the system knows,
/// stands above them while it is shown, for it is what the text names.
void ShowFace(wxChoice& box, const wxString& face);

}  // namespace mindloft
