#include "controls/styles/PreviewBox.h"

#include <wx/cursor.h>

namespace mindloft {
namespace {

constexpr long kStyle = wxRE_MULTILINE | wxRE_READONLY | wxBORDER_THEME | wxVSCROLL;

}  // namespace

PreviewBox::PreviewBox(wxWindow* parent, const wxString& name) {
  Create(parent, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, kStyle, wxDefaultValidator, name);
  PreviewBox::SetLayoutDirection(wxLayout_LeftToRight);
  SetTextCursor(*wxSTANDARD_CURSOR);
  SetCursor(*wxSTANDARD_CURSOR);
  const auto ignore = [](wxMouseEvent&) {};
  for (const auto& type : {wxEVT_LEFT_DOWN, wxEVT_LEFT_UP, wxEVT_LEFT_DCLICK, wxEVT_MIDDLE_DOWN,
                           wxEVT_RIGHT_DOWN, wxEVT_RIGHT_UP})
    Bind(type, ignore);
  Bind(wxEVT_CONTEXT_MENU, [](wxContextMenuEvent&) {});
}

void PreviewBox::SetLayoutDirection(wxLayoutDirection) {
  wxRichTextCtrl::SetLayoutDirection(wxLayout_LeftToRight);
}

}  // namespace mindloft
