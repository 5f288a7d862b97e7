#include "platform/SystemVersion.h"

#include <sys/utsname.h>

#include <fstream>

namespace mindloft::platform {
namespace {

/// The value of PRETTY_NAME="..." (os-release), or empty.
std::string PrettyName(const char* file) {
  constexpr std::string_view Name = "PRETTY_NAME=";
  std::ifstream lines(file);
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with(Name)) continue;
    auto value = line.substr(Name.size());
    if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
        value.back() == value.front()) {
      value = value.substr(1, value.size() - 2);
    }
    return value;
  }
  return {};
}

}  // namespace

std::string GetSystemName() {
  for (const char* file : {"/etc/os-release", "/usr/lib/os-release"}) {
    if (auto name = PrettyName(file); !name.empty()) return name;
  }
  return "Linux";
}

std::string OSInfo() {
  utsname system{};
  if (uname(&system) != 0) return GetSystemName();
  return GetSystemName() + " (" + system.sysname + " " + system.release + ")";
}

bool HasVisualStyles() {
  return true;
}

}  // namespace mindloft::platform
