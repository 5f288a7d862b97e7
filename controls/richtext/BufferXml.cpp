#include "controls/richtext/BufferXml.h"

#include <wx/mstream.h>
#include <wx/richtext/richtextxml.h>

#include "backend/errors/Error.h"

namespace mindloft {
namespace {

/// The toolkit's stream into memory makes room for each piece alone: a thousand pages would take minutes.
class TextStream : public wxOutputStream {
 public:
  std::string text;

 protected:
  std::size_t OnSysWrite(const void* piece, std::size_t size) override {
    text.append(static_cast<const char*>(piece), size);
    return size;
  }
};

}  // namespace

void RegisterBufferXml() {
  if (!wxRichTextBuffer::FindHandler(wxRICHTEXT_TYPE_XML))
    wxRichTextBuffer::AddHandler(new wxRichTextXMLHandler);
}

void LoadBufferXml(wxRichTextBuffer& buffer, const std::string& xml) {
  RegisterBufferXml();
  wxMemoryInputStream stream(xml.data(), xml.size());
  if (!buffer.LoadFile(stream, wxRICHTEXT_TYPE_XML))
    throw Error(ErrorNumber::Unexpected, "the rich-text component refused a document");
}

std::string SaveBufferXml(wxRichTextBuffer& buffer) {
  RegisterBufferXml();
  TextStream stream;
  if (!buffer.SaveFile(stream, wxRICHTEXT_TYPE_XML))
    throw Error(ErrorNumber::Unexpected, "the rich-text component could not write its document");
  return std::move(stream.text);
}

}  // namespace mindloft
