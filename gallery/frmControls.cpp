#include "gallery/frmControls.h"

#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "controls/RegisterControls.h"
#include "core/ErrorHandling.h"
#include "core/forms/Form.h"
#include "core/forms/Images.h"
#include "gallery/ButtonsPart.h"
#include "gallery/NumbersPart.h"
#include "gallery/TextsPart.h"

namespace mindloft {
namespace {

constexpr int kGap = 4;
constexpr int kBorders = 60;

}  // namespace

frmControls::frmControls() {
  RegisterControls();
  Create(nullptr, wxID_ANY, "Mindloft controls", wxPoint(0, 0), wxDefaultSize, wxDEFAULT_FRAME_STYLE,
         "frmControls");
  SetIcons(WindowIcons());

  auto* page = new wxPanel(this);
  auto* columns = new wxBoxSizer(wxHORIZONTAL);
  auto* lastEvent = new wxStaticText(page, wxID_ANY, "The last event stands here.", wxDefaultPosition,
                                     wxDefaultSize, wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
  const auto tell = [lastEvent](const wxString& event) { lastEvent->SetLabelText(event); };
  const auto addColumn = [&](std::initializer_list<wxWindow*> parts) {
    auto* column = new wxBoxSizer(wxVERTICAL);
    for (wxWindow* part : parts) column->Add(part, wxSizerFlags().Expand().Border(wxALL, FromDIP(kGap)));
    columns->Add(column, wxSizerFlags().Expand());
  };
  // The line of events stands where the page has room.
  addColumn({new TextsPart(page, tell), lastEvent});
  addColumn({new NumbersPart(page, tell), new ButtonsPart(page, tell)});
  page->SetSizer(columns);
  ApplyLayoutDirection(*this);

  // The window manager tells how much its borders take only when the window is there: until then there is
  // room for any.
  const wxSize borders(FromDIP(kBorders), FromDIP(kBorders));
  SetClientSize(page->GetBestSize() + borders);
  Bind(wxEVT_SHOW, [this, page](wxShowEvent& event) {
    event.Skip();
    if (!event.IsShown()) return;
    CallAfter(
        [this, page] { Guarded("frmControls", "Form_Load", [&] { SetClientSize(page->GetBestSize()); }); });
  });
}

}  // namespace mindloft
