#include "bench/editors/DeletionBench.h"

#include <wx/listctrl.h>
#include <wx/modalhook.h>

#include <stdexcept>
#include <string>

#include "backend/tessaline/Services.h"
#include "bench/console/PaintClock.h"
#include "controls/explorer/ctExplorer.h"
#include "mainwindow/TreeKeys.h"
#include "mainwindow/frmSysAdmin.h"

namespace mindloft::bench {
namespace {

constexpr std::int64_t kSelected = 1000;

/// Says yes to every question.
class YesToAll : public wxModalDialogHook {
 public:
  YesToAll() { Register(); }
  ~YesToAll() override { Unregister(); }

 protected:
  int Enter(wxDialog*) override { return wxID_YES; }
};

void PressKey(wxWindow& list, int key, bool shift = false) {
  wxKeyEvent event(wxEVT_KEY_DOWN);
  event.m_keyCode = key;
  event.m_shiftDown = shift;
  event.SetEventObject(&list);
  list.HandleWindowEvent(event);
}

void SelectUsers(ctExplorer& explorer, wxWindow& list, std::int64_t first) {
  explorer.SelectListRow(first);
  for (std::int64_t row = 1; row < kSelected; ++row) PressKey(list, WXK_DOWN, true);
  if (explorer.SelectedListCount() != kSelected) throw std::runtime_error("the users are not selected");
}

}  // namespace

void MeasureDeletion(int runs, Figures& figures) {
  auto* form = new frmSysAdmin;
  form->Load(GetConnection(), false);
  form->Show();
  auto& explorer = form->Explorer();
  explorer.SelectTreeNode(explorer.FindTreeNode(keys::kUsers));
  auto* list = wxWindow::FindWindowByName("list", form);
  PaintClock clock(*form);
  clock.Settle();
  std::vector<double> times;
  const YesToAll yes;
  for (int run = 0; run < runs; ++run) {
    const auto before = explorer.ListCount();
    // From places far from each other, as rows that were searched for are.
    SelectUsers(explorer, *list, before / (run + 2));
    clock.Settle();
    times.push_back(clock.Measure([list] { PressKey(*list, WXK_DELETE); }));
    if (explorer.ListCount() != before - kSelected) throw std::runtime_error("the users are still there");
  }
  figures.Line("1,000 selected users deleted", Median(times), 2000);
  form->Close(true);
}

}  // namespace mindloft::bench
