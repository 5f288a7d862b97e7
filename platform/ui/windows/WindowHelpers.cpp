#include "platform/ui/WindowHelpers.h"

#include <windows.h>
#include <wx/window.h>

namespace mindloft::platform {
namespace {

constexpr int NameSize = 255;  // characters of a title or class, with the end
constexpr UINT NextSibling = 2;
constexpr UINT FirstChild = 5;
/// Other programs move their windows while the walk is under way; without an end it could go in circles.
constexpr int MostWindows = 100000;

static_assert(NextSibling == GW_HWNDNEXT && FirstChild == GW_CHILD);

HWND Native(WindowHandle window) {
  return reinterpret_cast<HWND>(window);
}

wxString ClassName(HWND window) {
  wchar_t name[NameSize] = L"";
  GetClassNameW(window, name, NameSize);
  return name;
}

class Search {
 public:
  Search(std::vector<WindowHandle>& handles, const wxString& title, const wxString& className)
      : handles_(handles), title_(title), class_(className) {}

  void VisitSiblings(HWND window) {
    for (; window && seen_ < MostWindows; window = GetWindow(window, NextSibling)) Visit(window);
  }

  void Visit(HWND window) {
    ++seen_;
    VisitSiblings(GetWindow(window, FirstChild));
    wchar_t title[NameSize] = L"";
    GetWindowTextW(window, title, NameSize);
    if (wxString(title).Matches(title_) && ClassName(window).Matches(class_)) {
      handles_.push_back(reinterpret_cast<WindowHandle>(window));
      ++found_;
    }
  }

  int Found() const { return found_; }

 private:
  std::vector<WindowHandle>& handles_;
  const wxString& title_;
  const wxString& class_;
  int found_ = 0;
  int seen_ = 0;
};

}  // namespace

WindowHandle HandleOf(const wxWindow* window) {
  return window ? reinterpret_cast<WindowHandle>(window->GetHWND()) : 0;
}

wxString ClassNameOf(WindowHandle window) {
  return window ? ClassName(Native(window)) : wxString();
}

int FindWindowLike(std::vector<WindowHandle>& handles, WindowHandle start, const wxString& titlePattern,
                   const wxString& classPattern) {
  Search search(handles, titlePattern, classPattern);
  search.Visit(start ? Native(start) : GetDesktopWindow());
  return search.Found();
}

bool IsWindowShown(WindowHandle window) {
  return IsWindowVisible(Native(window)) != FALSE;
}

void ShowMindloft(WindowHandle window) {
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  if (GetWindowPlacement(Native(window), &placement)) {
    if (placement.showCmd == SW_SHOWMINIMIZED) {
      bool wasMaximized = (placement.flags & WPF_RESTORETOMAXIMIZED) != 0;
      placement.showCmd = wasMaximized ? SW_SHOWMAXIMIZED : SW_RESTORE;
    }
    SetWindowPlacement(Native(window), &placement);
  }
  SetForegroundWindow(Native(window));
}

}  // namespace mindloft::platform
