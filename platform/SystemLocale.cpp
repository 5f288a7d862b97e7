#include "platform/SystemLocale.h"

#include <algorithm>
#include <array>
#include <optional>

namespace mindloft::platform {
namespace {

std::optional<std::uint32_t> fakeLocale;

}  // namespace

std::uint32_t SystemDefaultLocale() {
  return fakeLocale ? *fakeLocale : RealSystemDefaultLocale();
}

bool IsDoubleByteLocale(std::uint32_t locale) {
  // Chinese of Taiwan, Japanese, Korean; Chinese of China, Hong Kong, Singapore and Macao.
  constexpr std::array<std::uint32_t, 7> DoubleByte{1028, 1041, 1042, 2052, 3076, 4100, 5124};
  return std::find(DoubleByte.begin(), DoubleByte.end(), locale) != DoubleByte.end();
}

FakeSystemLocale::FakeSystemLocale(std::uint32_t locale) {
  fakeLocale = locale;
}
FakeSystemLocale::~FakeSystemLocale() {
  fakeLocale.reset();
}

}  // namespace mindloft::platform
