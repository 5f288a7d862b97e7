#include "platform/ui/WindowHelpers.h"

#include <wx/toplevel.h>

namespace mindloft::platform {
namespace {

const wxWindow* Native(WindowHandle window) {
  return reinterpret_cast<const wxWindow*>(window);
}

void Visit(std::vector<WindowHandle>& handles, const wxWindow* window, const wxString& title,
           const wxString& className) {
  for (const auto* child : window->GetChildren()) {
    if (!child->IsTopLevel()) Visit(handles, child, title, className);
  }
  if (window->GetLabel().Matches(title) && ClassNameOf(HandleOf(window)).Matches(className)) {
    handles.push_back(HandleOf(window));
  }
}

/// Whether the window still lives; handles are kept by callers while windows come and go.
wxTopLevelWindow* FindTopLevel(WindowHandle handle) {
  for (auto* window : wxTopLevelWindows) {
    if (HandleOf(window) == handle) return dynamic_cast<wxTopLevelWindow*>(window);
  }
  return nullptr;
}

}  // namespace

WindowHandle HandleOf(const wxWindow* window) {
  return reinterpret_cast<WindowHandle>(window);
}

wxString ClassNameOf(WindowHandle window) {
  return window ? wxString(Native(window)->GetClassInfo()->GetClassName()) : wxString();
}

int FindWindowLike(std::vector<WindowHandle>& handles, WindowHandle start, const wxString& titlePattern,
                   const wxString& classPattern) {
  auto before = handles.size();
  if (start) {
    Visit(handles, Native(start), titlePattern, classPattern);
  } else {
    for (const auto* window : wxTopLevelWindows) Visit(handles, window, titlePattern, classPattern);
  }
  return static_cast<int>(handles.size() - before);
}

bool IsWindowShown(WindowHandle window) {
  const auto* found = FindTopLevel(window);
  return found && found->IsShown();
}

void ShowMindloft(WindowHandle window) {
  auto* found = FindTopLevel(window);
  if (!found) return;
  if (found->IsIconized()) found->Iconize(false);
  found->Raise();
  // A window manager may keep the window where it is; then it is at least marked.
  if (!found->IsActive()) found->RequestUserAttention();
}

}  // namespace mindloft::platform
