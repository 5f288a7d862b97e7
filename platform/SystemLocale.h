#pragma once

#include <cstdint>

namespace mindloft::platform {

/// The system's default locale as Windows numbers locales (1041: Japanese). Elsewhere it is read from the
/// environment (LC_ALL, LC_CTYPE, LANG); a locale whose number no part of the program asks for counts there
/// as kInvariantLocale.
std::uint32_t SystemDefaultLocale();

inline constexpr std::uint32_t kInvariantLocale = 127;

/// Whether it is one of the Chinese, Japanese and Korean locales, in which people type full-width characters.
bool IsDoubleByteLocale(std::uint32_t locale);

/// Puts another default locale in the place of the system's for a test, until it goes.
class FakeSystemLocale {
 public:
  explicit FakeSystemLocale(std::uint32_t locale);
  ~FakeSystemLocale();
  FakeSystemLocale(const FakeSystemLocale&) = delete;
  FakeSystemLocale& operator=(const FakeSystemLocale&) = delete;
};

/// The real one.
std::uint32_t RealSystemDefaultLocale();

}  // namespace mindloft::platform
