#pragma once

#include <wx/print.h>

#include <memory>

namespace mindloft {

/// Shows a preview in a window of its own above the other, with a bar in the program's language. Modal: what
/// is shown stays what is printed.
void ShowPreview(wxWindow* parent, std::unique_ptr<wxPrintPreview> preview, const wxString& title);

}  // namespace mindloft
