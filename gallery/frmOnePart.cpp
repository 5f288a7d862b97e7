#include "gallery/frmOnePart.h"

#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "controls/RegisterControls.h"
#include "core/forms/Form.h"
#include "core/forms/Images.h"

namespace mindloft {
namespace {

constexpr int kGap = 4;

}  // namespace

frmOnePart::frmOnePart(const MakePart& makePart) {
  RegisterControls();
  Create(nullptr, wxID_ANY, "Mindloft controls", wxPoint(0, 0), wxDefaultSize, wxDEFAULT_FRAME_STYLE,
         "frmOnePart");
  SetIcons(WindowIcons());
  auto* page = new wxPanel(this);
  auto* column = new wxBoxSizer(wxVERTICAL);
  auto* lastEvent = new wxStaticText(page, wxID_ANY, "The last event stands here.", wxDefaultPosition,
                                     wxDefaultSize, wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
  const auto tell = [lastEvent](const wxString& event) { lastEvent->SetLabelText(event); };
  column->Add(makePart(page, tell), wxSizerFlags(1).Expand().Border(wxALL, FromDIP(kGap)));
  column->Add(lastEvent, wxSizerFlags().Expand().Border(wxALL, FromDIP(kGap)));
  page->SetSizer(column);
  ApplyLayoutDirection(*this);
  SetClientSize(page->GetBestSize());
}

}  // namespace mindloft
