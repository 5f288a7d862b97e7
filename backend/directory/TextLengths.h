#pragma once

#include <cstddef>

namespace mindloft {

// The greatest numbers of characters (code points) of the stored texts.
inline constexpr std::size_t kNameLength = 100;
inline constexpr std::size_t kLineLength = 200;   ///< full name, department, e-mail, telephone
inline constexpr std::size_t kTextLength = 2000;  ///< plain descriptions and style definitions
inline constexpr std::size_t kConfigurationLength = 1'000'000;
inline constexpr std::size_t kDocumentLength = std::size_t{32} << 20;

}  // namespace mindloft
