#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mindloft {

/// Base64 (RFC 4648, section 4) without padding, as the PHC string format wants it.
std::string ToBase64(std::string_view bytes);

/// Nothing when the text is no base64 without padding.
std::optional<std::string> FromBase64(std::string_view text);

}  // namespace mindloft
