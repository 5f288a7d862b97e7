#include <wx/app.h>
#include <wx/init.h>
#include <wx/log.h>
#include <wx/richtext/richtextbuffer.h>

#include <string>

#include "backend/corvane/document/DocumentText.h"
#include "backend/corvane/document/SanitizeDocument.h"
#include "controls/richtext/BufferXml.h"
#include "fuzz/Fuzz.h"

using namespace mindloft::Corvane;
using mindloft::fuzz::Require;

namespace {

/// The component without windows: it needs no display until it shows something.
class Toolkit {
 public:
  Toolkit() {
    wxApp::SetInstance(new wxAppConsole);
    Require(wxInitialize());
    wxLog::EnableLogging(false);
    wxSetAssertHandler(
        [](const wxString&, int, const wxString&, const wxString&, const wxString&) { Require(false); });
  }
};

std::string ThroughComponent(const std::string& xml) {
  wxRichTextBuffer buffer;
  mindloft::LoadBufferXml(buffer, xml);
  const SafeDocument stored = SanitizeDocument(mindloft::SaveBufferXml(buffer));
  Require(stored.state == DocumentState::Whole || stored.state == DocumentState::Reduced);
  return stored.xml;
}

}  // namespace

// A stored text. What is made safe is read by the rich-text component, keeps its text there, and is the same
// however often it is opened and stored.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Toolkit toolkit;
  const SafeDocument safe = SanitizeDocument(mindloft::fuzz::TextOf(data, size));
  const std::string stored = ThroughComponent(safe.xml);
  Require(PlainTextOf(stored) == PlainTextOf(safe.xml));
  Require(ThroughComponent(stored) == stored);
  return 0;
}
