#include "controls/richtext/frmRichTabs.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/numformatter.h>
#include <wx/spinctrl.h>

#include <algorithm>

#include "controls/RegisterControls.h"
#include "core/ErrorHandling.h"
#include "platform/Lengths.h"

namespace mindloft {

frmRichTabs::frmRichTabs(wxWindow* parent) : FormDialog(WithControls(parent), "frmRichTabs") {
  spnPlace = Find<wxSpinCtrlDouble>("spnPlace");
  lstStops = Find<wxListBox>("lstStops");
  SetButtons("cmdOK", "cmdCancel");
  const std::pair<const char*, void (frmRichTabs::*)()> buttons[] = {
      {"cmdAdd", &frmRichTabs::cmdAdd_Click},
      {"cmdRemove", &frmRichTabs::cmdRemove_Click},
      {"cmdRemoveAll", &frmRichTabs::cmdRemoveAll_Click}};
  for (const auto& [name, click] : buttons) {
    Find<wxButton>(name)->Bind(wxEVT_BUTTON, [this, name = name, click = click](wxCommandEvent&) {
      Guarded("frmRichTabs", name, [&] { (this->*click)(); });
    });
  }
  LoadInfoOnForm();
}

bool frmRichTabs::Ask(std::vector<int>& stops) try {
  stops_ = stops;
  ShowStops();
  if (ShowModal() != wxID_OK) return false;
  stops = stops_;
  return true;
} catch (...) {
  mindloft::Raise("frmRichTabs", "Ask");
}

void frmRichTabs::ShowStops() {
  lstStops->Clear();
  for (const int stop : stops_)
    lstStops->Append(wxNumberFormatter::ToString(platform::MillimetresOf(stop), 1));
}

void frmRichTabs::cmdAdd_Click() {
  const int stop = platform::TenthsOf(spnPlace->GetValue());
  const auto place = std::lower_bound(stops_.begin(), stops_.end(), stop);
  const auto index = static_cast<int>(place - stops_.begin());
  if (stop > 0 && (place == stops_.end() || *place != stop)) stops_.insert(place, stop);
  ShowStops();
  if (index < static_cast<int>(stops_.size())) lstStops->SetSelection(index);
}

void frmRichTabs::cmdRemove_Click() {
  const int chosen = lstStops->GetSelection();
  if (chosen == wxNOT_FOUND) return;
  stops_.erase(stops_.begin() + chosen);
  ShowStops();
  if (!stops_.empty()) lstStops->SetSelection(std::min(chosen, static_cast<int>(stops_.size()) - 1));
}

void frmRichTabs::cmdRemoveAll_Click() {
  stops_.clear();
  ShowStops();
}

}  // namespace mindloft
