#include "fuzz/Fuzz.h"
#include "platform/registry/RegistryFileFormat.h"

using mindloft::fuzz::Require;
using mindloft::platform::RegistryFileFormat;

// A registry file of whatever content is read, and what was read survives being written.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto content = RegistryFileFormat::Parse(mindloft::fuzz::TextOf(data, size));
  const std::string written = RegistryFileFormat::Write(RegistryFileFormat::Tree(content));
  const auto again = RegistryFileFormat::Parse(written);
  Require(!again.IsDamaged());
  Require(RegistryFileFormat::Write(RegistryFileFormat::Tree(again)) == written);
  return 0;
}
