#include <string>

#include "backend/corvane/document/DocumentHtml.h"
#include "backend/corvane/document/DocumentText.h"
#include "backend/corvane/document/SanitizeDocument.h"
#include "fuzz/Fuzz.h"

using namespace mindloft::Corvane;
using mindloft::fuzz::Require;

// A stored text, formatted or not. What is made safe is safe already, has the same plain text, and can be
// written as HTML and read back.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto stored = mindloft::fuzz::TextOf(data, size);
  const SafeDocument safe = SanitizeDocument(stored);
  const SafeDocument again = SanitizeDocument(safe.xml);
  Require(again.xml == safe.xml);
  Require(again.state == DocumentState::Whole);
  PlainTextOf(stored);
  Require(DocumentOfHtml(HtmlOfDocument(safe.xml)).state != DocumentState::Broken);
  return 0;
}
