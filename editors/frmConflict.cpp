#include "editors/frmConflict.h"

#include <wx/button.h>
#include <wx/datetime.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "backend/errors/Error.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "backend/tessaline/login/WrappedLabel.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

constexpr int kChangedMeanwhile = 61601;  ///< %1 object, %2 who, %3 when
constexpr int kMine = 61602;
constexpr int kTheirs = 61603;
/// Of the introduction and of a value's box, in pixels at 96 dpi.
constexpr int kTextWidth = 460;
constexpr int kValueWidth = 180;
constexpr int kLinesHeight = 72;

/// The time of an error's parameter (UTC, ISO 8601) as the user's clock shows it.
wxString LocalTime(const std::string& iso) {
  wxDateTime time;
  wxString text = ToWx(iso);
  wxString::const_iterator end;
  if (!time.ParseFormat(text, "%Y-%m-%dT%H:%M:%S", &end)) return text;
  return time.FromUTC().Format("%Y-%m-%d %H:%M:%S");
}

wxString Parameter(const Error& error, std::size_t index) {
  if (index >= error.Parameters().size()) return {};
  const std::string& text = error.Parameters()[index];
  return index == 2 ? LocalTime(text) : ToWx(text);
}

}  // namespace

frmConflict::frmConflict(wxWindow* parent, const Error& conflict,
                         const std::vector<FieldDifference>& differences)
    : FormDialog(parent, "frmConflict") {
  lblWhat = Find<wxStaticText>("lblWhat");
  pnlFields = Find<wxPanel>("pnlFields");
  SetButtons("cmdMine", "cmdBack");
  // Enter must not decide against either side.
  auto* back = Find<wxButton>("cmdBack");
  back->SetDefault();
  back->SetFocus();
  ShowDifferences(differences);
  const wxString what = GetResource().GetFormatString(
      kChangedMeanwhile, {Parameter(conflict, 0), Parameter(conflict, 1), Parameter(conflict, 2)});
  SetWrappedLabel(*lblWhat, what, FromDIP(kTextWidth));
  const auto button = [this](const char* name, ConflictChoice choice) {
    Find<wxButton>(name)->Bind(wxEVT_BUTTON, [this, choice](wxCommandEvent&) { Choose(choice); });
  };
  button("cmdMine", ConflictChoice::Mine);
  button("cmdTheirs", ConflictChoice::Theirs);
  button("cmdBack", ConflictChoice::GoBack);
  LoadInfoOnForm();
  CentreOnParent();
}

void frmConflict::ShowDifferences(const std::vector<FieldDifference>& differences) {
  auto* grid = new wxFlexGridSizer(3, FromDIP(6), FromDIP(8));
  grid->AddGrowableCol(1);
  grid->AddGrowableCol(2);
  const auto heading = [&](const wxString& text) {
    auto* label = new wxStaticText(pnlFields, wxID_ANY, wxString());
    label->SetLabelText(text);
    label->SetFont(label->GetFont().Bold());
    grid->Add(label);
  };
  heading({});
  heading(GetResource().GetString(kMine));
  heading(GetResource().GetString(kTheirs));
  const auto value = [&](const wxString& name, const wxString& text) {
    // A box shows a text of any length, and it can be copied from there.
    const bool hasLines = text.Contains("\n");
    const wxSize size = FromDIP(wxSize(kValueWidth, hasLines ? kLinesHeight : -1));
    auto* box = new wxTextCtrl(pnlFields, wxID_ANY, text, wxDefaultPosition, size,
                               wxTE_READONLY | (hasLines ? wxTE_MULTILINE : 0), wxDefaultValidator, name);
    grid->Add(box, 1, wxEXPAND);
  };
  for (std::size_t i = 0; i < differences.size(); ++i) {
    auto* label = new wxStaticText(pnlFields, wxID_ANY, wxString());
    label->SetLabelText(differences[i].label);
    grid->Add(label, 0, wxALIGN_CENTER_VERTICAL);
    value(wxString::Format("txtMine%zu", i), differences[i].mine);
    value(wxString::Format("txtTheirs%zu", i), differences[i].theirs);
  }
  pnlFields->SetSizer(grid);
}

void frmConflict::Choose(ConflictChoice choice) {
  choice_ = choice;
  EndModal(choice == ConflictChoice::GoBack ? wxID_CANCEL : wxID_OK);
}

ConflictChoice frmConflict::Ask() try {
  ShowModal();
  return choice_;
} catch (...) {
  mindloft::Raise("frmConflict", "Ask");
}

}  // namespace mindloft
