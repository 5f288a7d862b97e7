#include "mainwindow/MainStatusBar.h"

#include <wx/frame.h>
#include <wx/statusbr.h>

#include "backend/tessaline/GroupedNumber.h"
#include "backend/tessaline/Services.h"
#include "mainwindow/Texts.h"
#include "platform/ui/StatusBar.h"

namespace mindloft {

namespace {

enum Field : int { UserField, CountField, SelectedField, FieldCount };

}  // namespace

void MainStatusBar::Build() {
  wxString kept[FieldCount];
  const bool shown = !frame_.GetStatusBar() || IsShown();
  if (auto* old = frame_.GetStatusBar()) {
    for (int field = 0; field < FieldCount; ++field) kept[field] = old->GetStatusText(field);
    frame_.SetStatusBar(nullptr);
    old->Destroy();
  }
  auto* bar = platform::NewStatusBar(frame_, "sbrMain");
  bar->SetFieldsCount(FieldCount);
  const int widths[] = {-3, -2, -2};
  bar->SetStatusWidths(FieldCount, widths);
  // Menu tips would cover who is logged in.
  frame_.SetStatusBarPane(-1);
  for (int field = 0; field < FieldCount; ++field) bar->SetStatusText(kept[field], field);
  frame_.SetStatusBar(bar);
  if (!shown) Show(false);
}

void MainStatusBar::ShowUser(const wxString& name) {
  frame_.SetStatusText(GetResource().GetString(texts::kLoggedInAs) + " " + name, UserField);
}

void MainStatusBar::ShowCounts(std::int64_t shown, std::int64_t all, bool filtered, std::int64_t selected) {
  const auto& resource = GetResource();
  frame_.SetStatusText(
      filtered ? resource.GetFormatString(texts::kCountFiltered, {GroupedNumber(shown), GroupedNumber(all)})
               : resource.GetFormatString(texts::kCount, {GroupedNumber(shown)}),
      CountField);
  frame_.SetStatusText(
      selected > 0 ? resource.GetFormatString(texts::kSelected, {GroupedNumber(selected)}) : wxString(),
      SelectedField);
}

bool MainStatusBar::IsShown() const {
  return frame_.GetStatusBar() && frame_.GetStatusBar()->IsShown();
}

void MainStatusBar::Show(bool show) {
  if (auto* bar = frame_.GetStatusBar()) bar->Show(show);
  frame_.SendSizeEvent();
}

}  // namespace mindloft
