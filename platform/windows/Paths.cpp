#include "platform/Paths.h"

#include <windows.h>
#include <shlobj.h>

#include <memory>

#include "backend/errors/Error.h"
#include "platform/windows/Wide.h"

namespace mindloft::platform {
namespace {

std::filesystem::path KnownFolder(const KNOWNFOLDERID& id) {
  wchar_t* name = nullptr;
  auto result = SHGetKnownFolderPath(id, KF_FLAG_DEFAULT, nullptr, &name);
  std::unique_ptr<wchar_t, decltype(&CoTaskMemFree)> owner(name, &CoTaskMemFree);
  if (FAILED(result)) {
    throw Error(ErrorNumber::PathAccess, "a known folder;" + SystemErrorText(static_cast<DWORD>(result)));
  }
  return name;
}

}  // namespace

std::filesystem::path ProgramFolder() {
  std::wstring name(MAX_PATH, L'\0');
  for (;;) {
    auto length = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    if (length == 0) throw Error(ErrorNumber::PathAccess, SystemErrorText(GetLastError()));
    if (length < name.size()) {
      name.resize(length);
      return std::filesystem::path(name).parent_path();
    }
    name.resize(name.size() * 2);
  }
}

std::filesystem::path DefaultDirectoryFile() {
  return KnownFolder(FOLDERID_ProgramData) / "Mindloft" / "mindloft.directory";
}

std::filesystem::path ConfigFolder() {
  return KnownFolder(FOLDERID_RoamingAppData) / "Mindloft";
}

std::filesystem::path LogFolder() {
  return KnownFolder(FOLDERID_LocalAppData) / "Mindloft" / "Log";
}

std::filesystem::path RuntimeFolder() {
  auto folder = KnownFolder(FOLDERID_LocalAppData) / "Mindloft" / "Run";
  std::filesystem::create_directories(folder);
  return folder;
}

}  // namespace mindloft::platform
