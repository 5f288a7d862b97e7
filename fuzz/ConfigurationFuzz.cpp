#include <string>

#include "backend/corvane/ConfigXml.h"
#include "backend/errors/Error.h"
#include "fuzz/Fuzz.h"

using mindloft::Error;
using mindloft::Corvane::ConfigXml;
using mindloft::fuzz::Require;

// An expression in the first line, a configuration document below it. What was set is found again, and stands
// in the document that is stored.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto [first, xml] = mindloft::fuzz::FirstLine(mindloft::fuzz::TextOf(data, size));
  const std::string expression(first);
  const std::string text = " a<b> \"c\" ";
  try {
    ConfigXml document(xml);
    const bool wasThere = document.Select(expression).has_value();
    document.Set(expression, text);
    const auto found = document.Select(expression);
    // An expression may ask for what stood there before.
    Require(found == text || wasThere);
    const std::string stored = document.Text();
    Require(stored.find("=\" a&lt;b") != std::string::npos);
    Require(ConfigXml(stored).Select(expression) == found);
  } catch (const Error&) {
  }
  return 0;
}
