#include "controls/richtext/Document.h"

#include <wx/scopeguard.h>

#include <utility>

#include "backend/corvane/document/DocumentHtml.h"
#include "backend/corvane/document/SanitizeDocument.h"
#include "backend/errors/Error.h"
#include "controls/richtext/BufferXml.h"
#include "controls/richtext/CellFonts.h"
#include "controls/richtext/RichEditor.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

using Corvane::DocumentState;
using Corvane::SafeDocument;

/// After loading: the space around the text, and for tables without a font of their own that of the text,
/// which they do not take by themselves.
void CompleteStyle(RichEditor& editor) {
  constexpr int kSpaceAround = 5;
  editor.SetMargins(kSpaceAround);
  for (auto* node = editor.GetBuffer().GetChildren().GetFirst(); node; node = node->GetNext()) {
    auto* paragraph = dynamic_cast<wxRichTextParagraph*>(node->GetData());
    if (!paragraph) continue;
    for (auto* part = paragraph->GetChildren().GetFirst(); part; part = part->GetNext()) {
      auto* table = dynamic_cast<wxRichTextTable*>(part->GetData());
      if (!table || table->GetAttributes().HasFontPointSize()) continue;
      wxRichTextAttr format = editor.GetBasicStyle();
      format.GetTextBoxAttr() = wxTextBoxAttr();
      wxRichTextApplyStyle(format, table->GetAttributes());
      table->SetAttributes(format);
    }
  }
}

int MessageOf(DocumentState state) {
  switch (state) {
    case DocumentState::Broken:
      return static_cast<int>(ErrorNumber::DocumentBroken);
    case DocumentState::TooLarge:
      return static_cast<int>(ErrorNumber::DocumentTooLarge);
    case DocumentState::Reduced:
      return static_cast<int>(ErrorNumber::DocumentReduced);
    case DocumentState::Whole:
    case DocumentState::PlainText:
      break;
  }
  return 0;
}

}  // namespace

int Document::Load(std::string_view stored) try {
  const SafeDocument safe = Corvane::SanitizeDocument(stored);
  Show(safe.xml);
  return MessageOf(safe.state);
} catch (...) {
  Raise("Document", "Load");
}

int Document::LoadHtml(std::string_view html) try {
  const SafeDocument safe = Corvane::DocumentOfHtml(html);
  Show(safe.xml);
  return MessageOf(safe.state);
} catch (...) {
  Raise("Document", "LoadHtml");
}

void Document::Show(const std::string& xml) {
  editor_->ReplaceContent([&] {
    wxRichTextBuffer& buffer = editor_->GetBuffer();
    editor_->UseBaseStyle();
    LoadBufferXml(buffer, xml);
    CompleteStyle(*editor_);
    GiveCellsFont(*editor_);
    buffer.Invalidate(wxRICHTEXT_ALL);
  });
}

std::string Document::Save() const try {
  TakeCellsFont(*editor_);
  const auto shown = wxMakeGuard([this] { GiveCellsFont(*editor_); });
  const std::string xml = SaveBufferXml(editor_->GetBuffer());
  SafeDocument safe = Corvane::SanitizeDocument(xml);
  if (safe.state == DocumentState::TooLarge) throw Error(ErrorNumber::DocumentTooLarge);
  if (safe.state == DocumentState::Broken)
    throw Error(ErrorNumber::Unexpected, "the rich-text component wrote a broken document");
  return std::move(safe.xml);
} catch (...) {
  Raise("Document", "Save");
}

std::string Document::SaveHtml() const try { return Corvane::HtmlOfDocument(Save()); } catch (...) {
  Raise("Document", "SaveHtml");
}

}  // namespace mindloft
