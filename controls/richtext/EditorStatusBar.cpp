#include "controls/richtext/EditorStatusBar.h"

#include <wx/stattext.h>

#include "backend/tessaline/Services.h"
#include "controls/richtext/CaretPlace.h"
#include "controls/richtext/RichTextControl.h"

namespace mindloft {
namespace {

constexpr int kFieldWidth = 110;
constexpr int kEdge = 3;
constexpr int kPageText = 62050;
constexpr int kLineText = 62051;
constexpr int kColumnText = 62052;
constexpr int kInsertText = 62054;
constexpr int kOverwriteText = 62055;

}  // namespace

EditorStatusBar::EditorStatusBar(wxWindow* parent, const wxString& name)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, name) {
  // Nothing can be done here: Tab goes past it.
  m_container.DisableSelfFocus();
  Swallow(*this);
  int left = FromDIP(kEdge);
  for (const char* field : {"lblPlace", "lblColumn", "lblZoom", "lblInsert"}) {
    auto* text =
        new wxStaticText(this, wxID_ANY, wxString(), wxPoint(left, FromDIP(kEdge)),
                         FromDIP(wxSize(kFieldWidth, -1)), wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END, field);
    Swallow(*text);
    fields_.push_back(text);
    left += FromDIP(kFieldWidth + kEdge);
  }
}

void EditorStatusBar::Swallow(wxWindow& window) {
  for (const auto& type : {wxEVT_LEFT_DOWN, wxEVT_RIGHT_DOWN, wxEVT_MIDDLE_DOWN, wxEVT_LEFT_DCLICK})
    window.Bind(type, [](wxMouseEvent&) {});
}

wxSize EditorStatusBar::DoGetBestClientSize() const {
  return {FromDIP(kEdge), GetCharHeight() + 2 * FromDIP(kEdge)};
}

void EditorStatusBar::Show(const RichTextControl& control) {
  const auto& texts = GetResource();
  const CaretPlace place = PlaceOfCaret(control.Editor(), control.Page());
  const auto number = [&](int text, long value) {
    return texts.GetFormatString(text, {wxString::Format("%ld", value)});
  };
  const wxString shown[] = {
      control.ViewMode() == kPageView ? number(kPageText, place.page) : number(kLineText, place.line),
      number(kColumnText, place.column), wxString::Format("%d %%", control.ZoomFactor()),
      texts.GetString(control.Editor().IsOverwriting() ? kOverwriteText : kInsertText)};
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    if (fields_[i]->GetLabel() != shown[i]) fields_[i]->SetLabelText(shown[i]);
  }
}

}  // namespace mindloft
