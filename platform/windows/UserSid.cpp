#include "platform/windows/UserSid.h"

#include <windows.h>
#include <sddl.h>

#include <memory>
#include <vector>

#include "platform/windows/Handle.h"
#include "platform/windows/Wide.h"

namespace mindloft::platform {
namespace {

std::string UserName() {
  wchar_t name[257] = {};
  DWORD size = 257;
  return GetUserNameW(name, &size) ? Narrow(name) : std::string();
}

}  // namespace

std::string UserSid() {
  HANDLE opened = nullptr;
  if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &opened)) return UserName();
  const Handle token(opened);
  DWORD size = 0;
  GetTokenInformation(token.Get(), TokenUser, nullptr, 0, &size);
  std::vector<std::byte> buffer(size);
  if (!GetTokenInformation(token.Get(), TokenUser, buffer.data(), size, &size)) return UserName();
  wchar_t* text = nullptr;
  const auto* user = reinterpret_cast<const TOKEN_USER*>(buffer.data());
  if (!ConvertSidToStringSidW(user->User.Sid, &text)) return UserName();
  const std::unique_ptr<wchar_t, decltype(&LocalFree)> owned(text, &LocalFree);
  return Narrow(text);
}

}  // namespace mindloft::platform
