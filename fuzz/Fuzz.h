#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <utility>

// What the fuzzers share. Each defines LLVMFuzzerTestOneInput: it hands the input to a parser, which may
// refuse it with an Error but do nothing worse, and checks what must hold of what was parsed.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace mindloft::fuzz {

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// What stands before the first line break, and what stands behind it.
inline std::pair<std::string_view, std::string_view> FirstLine(std::string_view text) {
  const auto end = text.find('\n');
  if (end == std::string_view::npos) return {text, {}};
  return {text.substr(0, end), text.substr(end + 1)};
}

/// Ends the run as a finding.
inline void Require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace mindloft::fuzz
