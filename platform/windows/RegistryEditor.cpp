#include "platform/windows/RegistryEditor.h"

#include <windows.h>
#include <shellapi.h>

#include <string>

#include "backend/errors/Error.h"
#include "platform/windows/Handle.h"
#include "platform/windows/Wide.h"

namespace mindloft::platform {
namespace {

class RunningEditor : public RegistryImport {
 public:
  explicit RunningEditor(HANDLE process) : process_(process) {}
  bool IsRunning() const override {
    return process_ && WaitForSingleObject(process_.Get(), 0) == WAIT_TIMEOUT;
  }

 private:
  Handle process_;
};

/// The editor in the system's folder, whatever lies in the folders that are searched for programs.
std::wstring EditorPath() {
  std::wstring folder(MAX_PATH, L'\0');
  folder.resize(GetWindowsDirectoryW(folder.data(), MAX_PATH));
  return folder + L"\\regedit.exe";
}

}  // namespace

std::unique_ptr<RegistryImport> StartRegistryEditor(const std::filesystem::path& file) {
  // By the shell, which asks the user where the editor wants an administrator's rights.
  const std::wstring editor = EditorPath();
  const std::wstring arguments = L"/s \"" + file.wstring() + L"\"";
  SHELLEXECUTEINFOW start{};
  start.cbSize = sizeof start;
  start.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI;
  start.lpFile = editor.c_str();
  start.lpParameters = arguments.c_str();
  start.nShow = SW_SHOWMINNOACTIVE;
  if (!ShellExecuteExW(&start)) {
    throw Error(ErrorNumber::Registry,
                "starting the registry editor;" + Narrow(editor) + ";" + SystemErrorText(GetLastError()));
  }
  return std::make_unique<RunningEditor>(start.hProcess);
}

}  // namespace mindloft::platform
