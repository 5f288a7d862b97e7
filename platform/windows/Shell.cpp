#include "platform/Shell.h"

#include <windows.h>
#include <shellapi.h>

#include "platform/windows/Wide.h"

namespace mindloft::platform {

bool OpenInSystemShell(const std::string& target) {
  auto result = ShellExecuteW(nullptr, L"open", Wide(target).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<INT_PTR>(result) > 32;  // smaller ones are its error numbers
}

}  // namespace mindloft::platform
