#include "backend/corvane/StyleXml.h"
#include "fuzz/Fuzz.h"

using mindloft::Corvane::ReadStyle;
using mindloft::Corvane::WriteStyle;
using mindloft::fuzz::Require;

// A style's definition of whatever content gives a format. What is written of that is read without a problem,
// and is the same.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto definition = mindloft::fuzz::TextOf(data, size);
  const auto reading = ReadStyle(definition);
  const auto again = ReadStyle(WriteStyle(reading.format, definition));
  // The parser takes bytes that are no UTF-8 for others.
  if (reading.problem.empty()) Require(again.format == reading.format);
  return 0;
}
