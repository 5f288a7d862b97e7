#pragma once

#include <span>
#include <string_view>

namespace mindloft {

/// A given or family name, and how it is written in a login name.
struct SampleName {
  std::string_view text;
  std::string_view latin;
};

/// What users of one language are made of.
struct SampleLocale {
  std::span<const SampleName> given;
  std::span<const SampleName> family;
  std::span<const std::string_view> departments;
  std::span<const std::string_view> duties;
  std::string_view telephone;  ///< country and area code
  std::string_view between;    ///< between the names
  bool familyFirst = false;
};

/// Languages of the Latin script, with their accents.
std::span<const SampleLocale> LatinSampleLocales();
/// Languages of other scripts.
std::span<const SampleLocale> OtherSampleLocales();

}  // namespace mindloft
