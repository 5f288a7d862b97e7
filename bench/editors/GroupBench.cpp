#include "bench/editors/GroupBench.h"

#include <wx/bookctrl.h>

#include <cstdio>
#include <string>
#include <vector>

#include "backend/tessaline/Services.h"
#include "bench/console/PaintClock.h"
#include "controls/explorer/ctExplorer.h"
#include "editors/members/frmDGroupProperty.h"

namespace mindloft::bench {
namespace {

constexpr std::int64_t kMembers = 100'000;
/// Users of the domain who are not in the group.
constexpr std::int64_t kCandidates = 1000;

struct Times {
  std::vector<double> open, members, removed, picker, added;
};

std::string Ids(std::int64_t count) {
  std::string ids;
  for (const auto& user : GetApplication()->Server()->Users()->View().Page(0, count))
    ids += Corvane::IdText(user.id) + ";";
  return ids;
}

std::shared_ptr<Corvane::DGroup> GroupOfMany() {
  const auto server = GetApplication()->Server();
  const auto domain = server->KDomains()->Add();
  domain->SetName("of many users " + std::to_string(server->KDomains()->Count()));
  domain->Update();
  domain->ChangeUsers(Ids(kMembers + kCandidates), {});
  const auto group = domain->DGroups()->Add();
  group->SetName("of many members");
  group->Update();
  group->ChangeMembers(Ids(kMembers), {});
  return group;
}

/// From the click that closes the picker until the sheet shows what is stored.
void AddOne(wxApp& app, frmDGroupProperty& form, PaintClock& clock, Times& times) {
  const double asked = NowMs();
  double picked = 0;
  app.CallAfter([&] {
    auto* picker = wxWindow::FindWindowByName("frmListUser");
    PaintClock pickerClock(*picker);
    pickerClock.Settle();
    times.picker.push_back(pickerClock.LastPaint() - asked);
    picked = NowMs();
    Press(*picker, "cmdOK");
  });
  Press(form, "cmdAdd");
  Press(form, "cmdApply");
  clock.Settle();
  times.added.push_back(clock.LastPaint() - picked);
}

void OpenOnce(wxApp& app, const std::shared_ptr<Corvane::DGroup>& group, Times& times) {
  const double begin = NowMs();
  frmDGroupProperty form(app.GetTopWindow());
  app.CallAfter([&] {
    PaintClock clock(form);
    clock.Settle();
    times.open.push_back(clock.LastPaint() - begin);
    auto* tabs = dynamic_cast<wxBookCtrlBase*>(wxWindow::FindWindowByName("sstGroup", &form));
    times.members.push_back(clock.Measure([tabs] { tabs->SetSelection(1); }));
    dynamic_cast<ctExplorer*>(wxWindow::FindWindowByName("ctUser", &form))->SelectListRow(0);
    times.removed.push_back(clock.Measure([&form] {
      Press(form, "cmdRemove");
      Press(form, "cmdApply");
    }));
    AddOne(app, form, clock, times);
    form.Close();
  });
  form.OpenWindow(group);
}

}  // namespace

void MeasureGroup(wxApp& app, int runs, Figures& figures) {
  const auto group = GroupOfMany();
  std::printf("a group of %lld members\n", static_cast<long long>(group->Members()->Count()));
  Times times;
  for (int run = 0; run < runs; ++run) OpenOnce(app, group, times);
  figures.Line("group editor open", Median(times.open), 150);
  figures.Line("its members", Median(times.members), 150);
  figures.Line("one taken out and applied", Median(times.removed), 50);
  figures.Line("the picker open", Median(times.picker), 150);
  figures.Line("one picked, added and applied", Median(times.added), 50);
}

}  // namespace mindloft::bench
