#include "platform/linux/PaperNumbers.h"

namespace mindloft::platform {
namespace {

/// Numbers below are those of well-known papers on other systems.
constexpr std::uint16_t kFirst = 0x0100;

/// 32-bit FNV-1a, folded to 16 bits by its exclusive or, as its authors advise for small results.
std::uint16_t Folded(const std::string& name) {
  std::uint32_t hash = 2166136261U;
  for (const char each : name) hash = (hash ^ static_cast<unsigned char>(each)) * 16777619U;
  const auto folded = static_cast<std::uint16_t>((hash >> 16) ^ (hash & 0xFFFFU));
  return folded < kFirst ? static_cast<std::uint16_t>(folded + kFirst) : folded;
}

}  // namespace

std::uint16_t PaperNumbers::Give(const std::string& name) {
  if (const std::uint16_t known = Find(name)) return known;
  std::uint16_t number = Folded(name);
  while (number < kFirst || taken_.count(number)) ++number;
  byName_[name] = number;
  taken_.insert(number);
  return number;
}

std::uint16_t PaperNumbers::Find(const std::string& name) const {
  const auto found = byName_.find(name);
  return found == byName_.end() ? std::uint16_t{0} : found->second;
}

}  // namespace mindloft::platform
