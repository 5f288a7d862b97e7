#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "backend/directory/Records.h"
#include "backend/directory/index/IdSet.h"
#include "backend/errors/Error.h"

namespace mindloft {

/// Little-endian 32-bit numbers in stored bytes.
inline constexpr std::size_t kPackedSize = 4;

inline std::uint32_t PackedNumber(std::string_view bytes, std::size_t index) {
  auto byte = [&](std::size_t i) {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[index * kPackedSize + i]));
  };
  return byte(0) | byte(1) << 8 | byte(2) << 16 | byte(3) << 24;
}

inline void AppendPacked(std::string& bytes, std::uint32_t number) {
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(number >> shift & 0xff);
}

/// Overflow when the identifier does not fit.
inline PackedId PackId(ObjectId id) {
  if (id <= 0 || id > ObjectId{UINT32_MAX}) {
    throw Error(ErrorNumber::Overflow, "user identifier " + std::to_string(id));
  }
  return static_cast<PackedId>(id);
}

}  // namespace mindloft
