#include "platform/ui/FileDialogs.h"

#include <windows.h>
#include <commdlg.h>
#include <shlobj.h>
#include <wx/window.h>

#include <memory>
#include <vector>

namespace mindloft::platform {
namespace {

/// The longest path that the system can name, in characters with the end.
constexpr DWORD LongestPath = 32768;

HWND OwnerOf(const FileDialogRequest& request) {
  return request.owner ? static_cast<HWND>(request.owner->GetHWND()) : nullptr;
}

wxString AskForFolder(const FileDialogRequest& request) {
  wchar_t displayName[MAX_PATH] = L"";
  BROWSEINFOW browse{};
  browse.hwndOwner = OwnerOf(request);
  browse.pszDisplayName = displayName;
  browse.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;
  std::unique_ptr<ITEMIDLIST, decltype(&CoTaskMemFree)> folder(SHBrowseForFolderW(&browse), &CoTaskMemFree);
  wchar_t path[MAX_PATH] = L"";
  if (!folder || !SHGetPathFromIDListW(folder.get(), path)) return {};
  return path;  // ends at its first NUL
}

}  // namespace

wxString ShowFileDialog(const FileDialogRequest& request) {
  if (request.kind == FileDialogRequest::Kind::Folder) return AskForFolder(request);
  // Pairs separated by NULs, ended by one more.
  auto filter = request.filter.ToStdWstring();
  for (auto& c : filter) {
    if (c == L'|') c = L'\0';
  }
  filter.append(2, L'\0');
  std::vector<wchar_t> path(LongestPath, L'\0');
  auto name = request.defaultName.ToStdWstring().substr(0, LongestPath - 1);
  name.copy(path.data(), name.size());
  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = OwnerOf(request);
  dialog.lpstrFilter = request.filter.empty() ? nullptr : filter.c_str();
  dialog.lpstrFile = path.data();
  dialog.nMaxFile = LongestPath;
  dialog.Flags = OFN_EXPLORER | OFN_NOCHANGEDIR | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST;
  bool isChosen;
  if (request.kind == FileDialogRequest::Kind::Save) {
    dialog.Flags |= OFN_OVERWRITEPROMPT;
    isChosen = GetSaveFileNameW(&dialog) != FALSE;
  } else {
    dialog.Flags |= OFN_FILEMUSTEXIST;
    isChosen = GetOpenFileNameW(&dialog) != FALSE;
  }
  return isChosen ? wxString(path.data()) : wxString();
}

}  // namespace mindloft::platform
