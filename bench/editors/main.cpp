// Measures how long the property sheets take to open, and the changes of many objects to be done, from the
// command to the last painted pixel. Changes the directory.
//
//   editors-bench FOLDER
//
// The folder holds a directory of many users and domains (sample.directory) and the password of its `admin`
// in sample.log, as scripts/sample.sh makes it.

#include <wx/app.h>
#include <wx/bookctrl.h>
#include <wx/frame.h>

#include <cstdio>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "backend/tessaline/Services.h"
#include "bench/console/PaintClock.h"
#include "bench/editors/DeletionBench.h"
#include "bench/editors/GroupBench.h"
#include "editors/user/frmUserDetail.h"

namespace mindloft::bench {
namespace {

constexpr int kRuns = 11;
constexpr int kDeletions = 5;

std::string PasswordIn(const std::string& folder) {
  std::ifstream log(folder + "/sample.log");
  const std::string start = "password: ";
  for (std::string line; std::getline(log, line);)
    if (const auto place = line.find(start); place != std::string::npos)
      return line.substr(place + start.size());
  throw std::runtime_error("no password in " + folder + "/sample.log");
}

class EditorsBench : public wxApp {
 public:
  bool OnInit() override {
    if (argc != 2) {
      std::fprintf(stderr, "usage: editors-bench FOLDER\n");
      return false;
    }
    folder_ = argv[1].utf8_string();
    StopAnimations();
    frame_ = new wxFrame(nullptr, wxID_ANY, "bench");
    frame_->Show();
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
    figures_.Line("user editor open", Median(open), 150);
    figures_.Line("its roles", Median(roles), 150);
    figures_.Line("its domains and groups", Median(domains), 150);
    figures_.Line("the same of a user of all domains", Median(everywhere), 150);
    MeasureGroup(*this, kRuns, figures_);
    // Last: afterwards there are fewer users.
    MeasureDeletion(kDeletions, figures_);
    if (!figures_.AllHold()) status_ = 1;
    frame_->Close(true);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    status_ = 1;
    frame_->Close(true);
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

  std::string folder_;
  wxFrame* frame_ = nullptr;
  Figures figures_;
  int status_ = 0;
};

}  // namespace
}  // namespace mindloft::bench

wxIMPLEMENT_APP(mindloft::bench::EditorsBench);
