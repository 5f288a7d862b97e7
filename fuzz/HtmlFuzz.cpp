#include <string>

#include "backend/corvane/document/DocumentHtml.h"
#include "backend/corvane/document/SanitizeDocument.h"
#include "fuzz/Fuzz.h"

using namespace mindloft::Corvane;
using mindloft::fuzz::Require;

// An HTML text. The document that is made of it is safe already.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const SafeDocument safe = DocumentOfHtml(mindloft::fuzz::TextOf(data, size));
  Require(safe.state == DocumentState::Whole || safe.state == DocumentState::Reduced);
  Require(SanitizeDocument(safe.xml).xml == safe.xml);
  return 0;
}
