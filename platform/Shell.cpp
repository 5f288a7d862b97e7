#include "platform/Shell.h"

#include <algorithm>
#include <string_view>

#include "platform/Paths.h"
#include "platform/Unicode.h"

namespace mindloft::platform {
namespace {

std::function<bool(const std::string&)> fakeShell;

bool Open(const std::string& target) {
  return fakeShell ? fakeShell(target) : OpenInSystemShell(target);
}

}  // namespace

bool OpenWithShell(const std::filesystem::path& path) {
  std::error_code failure;
  if (path.empty() || !std::filesystem::exists(path, failure)) return false;
  auto absolute = std::filesystem::absolute(path, failure);
  return !failure && Open(PathToUtf8(absolute));
}

bool OpenUrl(const std::string& url) {
  constexpr std::string_view Schemes[] = {"HTTP:", "HTTPS:", "MAILTO:"};
  bool isKnown = std::any_of(std::begin(Schemes), std::end(Schemes), [&](std::string_view scheme) {
    return UpperCase(url.substr(0, scheme.size())) == scheme;
  });
  return isKnown && !HasControlCharacter(url) && Open(url);
}

FakeShell::FakeShell(std::function<bool(const std::string&)> open) {
  fakeShell = std::move(open);
}
FakeShell::~FakeShell() {
  fakeShell = nullptr;
}

}  // namespace mindloft::platform
