#include "platform/SystemLocale.h"

#include <cstdlib>
#include <string>
#include <string_view>

namespace mindloft::platform {
namespace {

struct Named {
  std::string_view name;
  std::uint32_t locale;
};

// A language alone stands for its most usual region.
constexpr Named kLocales[] = {{"zh_TW", 1028}, {"zh_HK", 3076}, {"zh_SG", 4100}, {"zh_MO", 5124},
                              {"zh", 2052},    {"ja", 1041},    {"ko", 1042}};

/// The name without encoding and modifier: "ja_JP" of "ja_JP.UTF-8".
std::string LocaleName() {
  for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"}) {
    const char* value = std::getenv(variable);
    if (!value || !*value) continue;
    const std::string name = value;
    return name.substr(0, name.find_first_of(".@"));
  }
  return {};
}

}  // namespace

std::uint32_t RealSystemDefaultLocale() {
  const std::string name = LocaleName();
  const std::string language = name.substr(0, name.find('_'));
  for (const Named& each : kLocales) {
    if (each.name == name || each.name == language) return each.locale;
  }
  return kInvariantLocale;
}

}  // namespace mindloft::platform
