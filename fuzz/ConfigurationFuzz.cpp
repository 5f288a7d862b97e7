#include <string>

#include "backend/corvane/ConfigXml.h"
#include "backend/errors/Error.h"
#include "fuzz/Fuzz.h"

using mindloft::Error;
using mindloft::Corvane::ConfigXml;
using mindloft::fuzz::Require;

// An expression in the first line, a configuration document below it. What was set is found again, also in
// the document that is stored.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto [first, xml] = mindloft::fuzz::FirstLine(mindloft::fuzz::TextOf(data, size));
  const std::string expression(first);
  const std::string text = " a<b> \"c\" ";
  try {
    ConfigXml(xml).Select(expression);
    ConfigXml document(xml);
    document.Set(expression, text);
    Require(document.Select(expression) == text);
    Require(ConfigXml(document.Text()).Select(expression) == text);
  } catch (const Error&) {
  }
  return 0;
}
