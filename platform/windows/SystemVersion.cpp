#include "platform/SystemVersion.h"

#include <windows.h>

#include <tuple>

namespace mindloft::platform {
namespace {

struct Version {
  DWORD major = 0;
  DWORD minor = 0;
  DWORD build = 0;
  bool isServer = false;
};

/// The true version; the older calls answer with what the program's manifest claims to know.
Version SystemVersion() {
  RTL_OSVERSIONINFOEXW info{};
  info.dwOSVersionInfoSize = sizeof info;
  using Query = LONG(WINAPI*)(RTL_OSVERSIONINFOEXW*);
  auto library = GetModuleHandleW(L"ntdll.dll");
  auto query =
      library ? reinterpret_cast<Query>(reinterpret_cast<void*>(GetProcAddress(library, "RtlGetVersion")))
              : nullptr;
  if (!query || query(&info) != 0) return {};
  return {info.dwMajorVersion, info.dwMinorVersion, info.dwBuildNumber,
          info.wProductType != VER_NT_WORKSTATION};
}

}  // namespace

std::string GetSystemName() {
  // The first build of each name (Microsoft's release information); a later build keeps the last name.
  struct Name {
    DWORD major, minor, build;
    const char* desktop;
    const char* server;
  };
  constexpr Name Names[] = {
      {10, 0, 26100, "Windows 11", "Windows Server 2025"},
      {10, 0, 22000, "Windows 11", "Windows Server"},
      {10, 0, 20348, "Windows 10", "Windows Server 2022"},
      {10, 0, 17763, "Windows 10", "Windows Server 2019"},
      {10, 0, 0, "Windows 10", "Windows Server 2016"},
      {6, 3, 0, "Windows 8.1", "Windows Server 2012 R2"},
      {6, 2, 0, "Windows 8", "Windows Server 2012"},
      {6, 1, 0, "Windows 7", "Windows Server 2008 R2"},
  };
  auto version = SystemVersion();
  for (const auto& name : Names) {
    if (std::tie(version.major, version.minor, version.build) >=
        std::tie(name.major, name.minor, name.build)) {
      return version.isServer ? name.server : name.desktop;
    }
  }
  return "Windows";
}

std::string OSInfo() {
  auto version = SystemVersion();
  return GetSystemName() + " (" + std::to_string(version.major) + "." + std::to_string(version.minor) + "." +
         std::to_string(version.build) + ")";
}

bool HasVisualStyles() {
  const auto version = SystemVersion();
  // 5.1 is XP; without an answer the version is unknown.
  return version.major == 0 || std::tie(version.major, version.minor) >= std::make_tuple(5u, 1u);
}

}  // namespace mindloft::platform
