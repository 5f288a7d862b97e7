// Measures how long the property sheets take to open, from the command to the last painted pixel.
//
//   editors-bench FOLDER
//
// The folder holds a directory of many users and domains (sample.directory) and the password of its `admin`
// in sample.log, as scripts/sample.sh makes it.

#include <wx/app.h>
#include <wx/bookctrl.h>
#include <wx/button.h>
#include <wx/frame.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "backend/tessaline/Services.h"
#include "bench/console/PaintClock.h"
#include "controls/explorer/ctExplorer.h"
#include "editors/members/frmDGroupProperty.h"
#include "editors/user/frmUserDetail.h"

namespace mindloft::bench {
namespace {

constexpr int kRuns = 11;
constexpr std::int64_t kMembers = 100'000;

std::string PasswordIn(const std::string& folder) {
  std::ifstream log(folder + "/sample.log");
  const std::string start = "password: ";
  for (std::string line; std::getline(log, line);)
    if (const auto place = line.find(start); place != std::string::npos)
      return line.substr(place + start.size());
  throw std::runtime_error("no password in " + folder + "/sample.log");
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

class EditorsBench : public wxApp {
 public:
  bool OnInit() override {
    if (argc != 2) {
      std::fprintf(stderr, "usage: editors-bench FOLDER\n");
      return false;
    }
    folder_ = argv[1].utf8_string();
    (new wxFrame(nullptr, wxID_ANY, "bench"))->Show();
    CallAfter([this] { Run(); });
    return true;
  }
  int OnRun() override {
    wxApp::OnRun();
    return status_;
  }

 private:
  void Run() try {
    SetApplication(std::make_unique<Corvane::Application>(
        Corvane::EmbeddedDirectoryProvider(folder_ + "/sample.directory")));
    GetConnection()->SetConnectMode(1);
    if (!GetConnection()->Login("admin", PasswordIn(folder_))) throw std::runtime_error("not logged in");
    const auto server = GetApplication()->Server();
    std::printf("%lld users, %lld domains; medians of %d\n", static_cast<long long>(server->Users()->Count()),
                static_cast<long long>(server->KDomains()->Count()), kRuns);
    std::vector<double> open, roles, domains;
    for (int run = 0; run < kRuns; ++run) {
      const auto page = server->Users()->View().Page(500 + run, 1);
      if (page.empty()) throw std::runtime_error("too few users");
      OpenOnce(server->Users()->Item(Corvane::IdText(page.front().id)), open, roles, domains);
    }
    std::vector<double> ignored, everywhere;
    const auto user = UserOfAllDomains();
    for (int run = 0; run < kRuns; ++run) OpenOnce(user, ignored, ignored, everywhere);
    Line("user editor open", Median(open), 150);
    Line("its roles", Median(roles), 150);
    Line("its domains and groups", Median(domains), 150);
    Line("the same of a user of all domains", Median(everywhere), 150);
    MeasureGroup();
    GetTopWindow()->Close(true);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    status_ = 1;
    GetTopWindow()->Close(true);
  }

  static std::shared_ptr<Corvane::User> UserOfAllDomains() {
    const auto server = GetApplication()->Server();
    const auto user = server->Users()->Item(Corvane::IdText(server->Users()->View().Page(400, 1).front().id));
    std::string ids;
    for (const auto& domain : server->KDomains()->View().Page(0, server->KDomains()->Count()))
      ids += Corvane::IdText(domain.id) + ";";
    user->ChangeDomains(ids, {});
    return user;
  }

  void OpenOnce(const std::shared_ptr<Corvane::User>& user, std::vector<double>& open,
                std::vector<double>& roles, std::vector<double>& domains) {
    const double begin = NowMs();
    frmUserDetail form(GetTopWindow());
    CallAfter([&] {
      PaintClock clock(form);
      clock.Settle();
      open.push_back(clock.LastPaint() - begin);
      auto* tabs = dynamic_cast<wxBookCtrlBase*>(wxWindow::FindWindowByName("sstUser", &form));
      roles.push_back(clock.Measure([tabs] { tabs->SetSelection(1); }));
      domains.push_back(clock.Measure([tabs] { tabs->SetSelection(2); }));
      form.Close();
    });
    form.OpenWindow(user);
  }

  void MeasureGroup() {
    const auto group = GroupOfMany();
    std::printf("a group of %lld members\n", static_cast<long long>(group->Members()->Count()));
    std::vector<double> open, members, apply;
    for (int run = 0; run < kRuns; ++run) OpenGroupOnce(group, open, members, apply);
    Line("group editor open", Median(open), 150);
    Line("its members", Median(members), 150);
    Line("one taken out and applied", Median(apply), 50);
  }

  static std::shared_ptr<Corvane::DGroup> GroupOfMany() {
    const auto server = GetApplication()->Server();
    const auto domain = server->KDomains()->Add();
    domain->SetName("of many users " + std::to_string(server->KDomains()->Count()));
    domain->Update();
    std::string ids;
    for (const auto& user : server->Users()->View().Page(0, kMembers)) ids += Corvane::IdText(user.id) + ";";
    domain->ChangeUsers(ids, {});
    const auto group = domain->DGroups()->Add();
    group->SetName("of many members");
    group->Update();
    group->ChangeMembers(ids, {});
    return group;
  }

  static void Press(const wxWindow& form, const char* name) {
    auto* button = dynamic_cast<wxButton*>(wxWindow::FindWindowByName(name, &form));
    wxCommandEvent event(wxEVT_BUTTON, button->GetId());
    event.SetEventObject(button);
    button->HandleWindowEvent(event);
  }

  void OpenGroupOnce(const std::shared_ptr<Corvane::DGroup>& group, std::vector<double>& open,
                     std::vector<double>& members, std::vector<double>& apply) {
    const double begin = NowMs();
    frmDGroupProperty form(GetTopWindow());
    CallAfter([&] {
      PaintClock clock(form);
      clock.Settle();
      open.push_back(clock.LastPaint() - begin);
      auto* tabs = dynamic_cast<wxBookCtrlBase*>(wxWindow::FindWindowByName("sstGroup", &form));
      members.push_back(clock.Measure([tabs] { tabs->SetSelection(1); }));
      dynamic_cast<ctExplorer*>(wxWindow::FindWindowByName("ctUser", &form))->SelectListRow(0);
      apply.push_back(clock.Measure([&form] {
        Press(form, "cmdRemove");
        Press(form, "cmdApply");
      }));
      form.Close();
    });
    form.OpenWindow(group);
  }

  void Line(const char* what, double value, double limit) {
    const bool holds = value <= limit;
    if (!holds) status_ = 1;
    std::printf("%-40s %8.2f ms (at most %g) %s\n", what, value, limit, holds ? "ok" : "MISSED");
  }

  std::string folder_;
  int status_ = 0;
};

}  // namespace
}  // namespace mindloft::bench

wxIMPLEMENT_APP(mindloft::bench::EditorsBench);
