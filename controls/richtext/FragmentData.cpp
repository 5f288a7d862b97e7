#include "controls/richtext/FragmentData.h"

#include <wx/clipbrd.h>

#include <cstring>
#include <pugixml.hpp>
#include <string>
#include <string_view>

#include "backend/corvane/document/DocumentXml.h"
#include "backend/corvane/document/SanitizeDocument.h"
#include "controls/richtext/BufferXml.h"
#include "controls/richtext/RichEditor.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

/// Whether the last paragraph of the text is only a part of one: the text then goes into the line in which it
/// is put.
bool EndsWithinParagraph(std::string_view xml) {
  pugi::xml_document document;
  if (!Corvane::ParseDocument(xml, document)) return false;
  const auto layout = document.child("richtext").child("paragraphlayout");
  return std::string_view(layout.attribute("partialparagraph").value()) == "true";
}

}  // namespace

bool FragmentData::SetData(std::size_t size, const void* bytes) try {
  const auto* text = static_cast<const char*>(bytes);
  // The component writes a zero behind it.
  const std::string_view given(text, strnlen(text, size));
  auto buffer = std::make_unique<wxRichTextBuffer>();
  LoadBufferXml(*buffer, Corvane::SanitizeDocument(given).xml);
  buffer->SetPartialParagraph(EndsWithinParagraph(given));
  delete m_richTextBuffer;
  m_richTextBuffer = buffer.release();
  return true;
} catch (...) {
  ReportOnly("FragmentData", "SetData");
  return false;
}

bool HasClipboardFragment() {
  const wxClipboardLocker lock;
  return !lock ? false
               : wxTheClipboard->IsSupported(
                     wxDataFormat(wxRichTextBufferDataObject::GetRichTextBufferFormatId()));
}

std::unique_ptr<wxRichTextBuffer> ClipboardFragment() {
  FragmentData data;
  const wxClipboardLocker lock;
  if (!lock || !wxTheClipboard->GetData(data)) return nullptr;
  return std::unique_ptr<wxRichTextBuffer>(data.GetRichTextBuffer());
}

FragmentDropTarget::FragmentDropTarget(RichEditor& editor)
    : wxDropTarget(new FragmentData), editor_(editor) {}

wxDragResult FragmentDropTarget::OnDragOver(wxCoord x, wxCoord y, wxDragResult proposed) {
  return editor_.IsEditable() ? wxDropTarget::OnDragOver(x, y, proposed) : wxDragNone;
}

wxDragResult FragmentDropTarget::OnData(wxCoord x, wxCoord y, wxDragResult proposed) {
  if (!editor_.IsEditable() || !GetData()) return wxDragNone;
  editor_.OnDrop(x, y, proposed, GetDataObject());
  return proposed;
}

}  // namespace mindloft
