#include "bench/console/Walk.h"

#include <unistd.h>
#include <wx/headerctrl.h>
#include <wx/listctrl.h>
#include <wx/srchctrl.h>
#include <wx/toplevel.h>
#include <wx/treectrl.h>
#include <wx/uiaction.h>

#include <algorithm>
#include <cstdio>
#include <stdexcept>

#include "bench/console/PaintClock.h"
#include "bench/console/StartClock.h"

namespace mindloft::bench {
namespace {

constexpr int kRepetitions = 5;

template <typename Control>
Control& Inner(wxWindow& window, const char* name) {
  auto* control = dynamic_cast<Control*>(wxWindow::FindWindowByName(name, &window));
  if (!control) throw std::runtime_error(std::string("the main window has no ") + name);
  return *control;
}

class Walk {
 public:
  explicit Walk(wxTopLevelWindow& window)
      : clock_(window),
        tree_(Inner<wxTreeCtrl>(window, "tree")),
        search_(Inner<wxSearchCtrl>(window, "search")),
        list_(Inner<wxListCtrl>(window, "list")) {
    tree_.Expand(tree_.GetRootItem());
    users_ = FindUsersFolder();
  }

  void Run() {
    Report("users_folder", [this] {
      Click(FirstFolder());
      return Click(users_);
    });
    Report("end_key", [this] {
      list_.SetFocus();
      Key(WXK_HOME);
      return Key(WXK_END);
    });
    TypeFilter("anna");
    TypeFilter("a b");
    TypeFilter("zzzz");
    for (int column = 0; column < 3; ++column) {
      Report("heading_" + std::to_string(column), [this, column] { return ClickHeading(column); });
    }
    Filter("an");
    for (int column = 0; column < 3; ++column) {
      Report("heading_filtered_" + std::to_string(column), [this, column] { return ClickHeading(column); });
    }
    std::printf("rows %d\npeak %ld\n", list_.GetItemCount(), PeakKiB());
  }

 private:
  template <typename Action>
  void Report(const std::string& name, const Action& action) {
    std::vector<double> times;
    for (int i = 0; i < kRepetitions; ++i) times.push_back(action());
    std::sort(times.begin(), times.end());
    std::printf("%s %.2f\n%s_max %.2f\n", name.c_str(), times[times.size() / 2], name.c_str(), times.back());
  }

  /// Each keystroke is measured; the slowest keystroke of the median repetition counts.
  void TypeFilter(const std::string& text) {
    Report("filter_" + (text == "a b" ? std::string("two_words") : text), [&] {
      Filter("");
      search_.SetFocus();
      double slowest = 0;
      for (char c : text) slowest = std::max(slowest, Key(c == ' ' ? int(WXK_SPACE) : std::toupper(c)));
      return slowest;
    });
    Filter("");
  }

  void Filter(const char* text) {
    search_.SetValue(text);
    clock_.Settle();
  }

  double Key(int key) {
    return clock_.Measure([&] { user_.Char(key); });
  }

  double Click(const wxTreeItemId& item) {
    wxRect place;
    tree_.GetBoundingRect(item, place, true);
    return ClickAt(tree_.ClientToScreen(place.GetPosition() + wxPoint(place.width / 2, place.height / 2)));
  }

  double ClickHeading(int column) {
    int x = 0;
    for (int i = 0; i < column; ++i) x += list_.GetColumnWidth(i);
    // The headings stand above the rows' area.
    return ClickAt(list_.GetScreenPosition() + wxPoint(x + list_.GetColumnWidth(column) / 2, 10));
  }

  double ClickAt(const wxPoint& screen) {
    user_.MouseMove(screen);
    clock_.Settle();
    return clock_.Measure([&] { user_.MouseClick(); });
  }

  wxTreeItemId FirstFolder() const {
    wxTreeItemIdValue cookie;
    return tree_.GetFirstChild(tree_.GetRootItem(), cookie);
  }

  /// The last folder of the root.
  wxTreeItemId FindUsersFolder() const {
    wxTreeItemId last = tree_.GetLastChild(tree_.GetRootItem());
    tree_.EnsureVisible(last);
    return last;
  }

  PaintClock clock_;
  wxUIActionSimulator user_;
  wxTreeCtrl& tree_;
  wxSearchCtrl& search_;
  wxListCtrl& list_;
  wxTreeItemId users_;
};

}  // namespace

void WalkAndReport(wxTopLevelWindow& window) {
  try {
    Walk(window).Run();
    std::fflush(stdout);
    _exit(0);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    _exit(1);
  }
}

}  // namespace mindloft::bench
