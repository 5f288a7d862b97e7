#include "backend/corvane/document/SanitizeDocument.h"

#include <pugixml.hpp>

#include "backend/corvane/document/BrokenDocument.h"
#include "backend/corvane/document/DocumentCleaner.h"
#include "backend/corvane/document/DocumentLimits.h"
#include "backend/corvane/document/DocumentText.h"
#include "backend/corvane/document/DocumentXml.h"
#include "platform/Unicode.h"

namespace mindloft::Corvane {
namespace {

SafeDocument PlainDocument(std::string_view text, DocumentState state) {
  if (text.size() > kMostPlainBytes) state = DocumentState::TooLarge;
  return {DocumentOfPlainText(text.substr(0, kMostPlainBytes)), state};
}

}  // namespace

SafeDocument SanitizeDocument(std::string_view stored) {
  const bool isFormatted = IsFormattedDocument(stored);
  if (stored.size() > kMostDocumentBytes) {
    stored = stored.substr(0, kMostDocumentBytes);
    return PlainDocument(isFormatted ? TextOfBrokenDocument(stored) : std::string(stored),
                         DocumentState::TooLarge);
  }
  if (!isFormatted) return PlainDocument(stored, DocumentState::PlainText);

  const std::string clean = platform::CleanUtf8(stored);
  pugi::xml_document source;
  pugi::xml_document target;
  DocumentCleaner cleaner;
  if (!ParseDocument(clean, source) ||
      !cleaner.CopyDocument(source.child("richtext"), AddDocumentRoot(target)))
    return PlainDocument(TextOfBrokenDocument(clean), DocumentState::Broken);
  if (cleaner.IsTooLarge()) return PlainDocument(TextOfBrokenDocument(clean), DocumentState::TooLarge);
  const bool isWhole = !cleaner.IsReduced() && clean == stored;
  return {WriteDocument(target), isWhole ? DocumentState::Whole : DocumentState::Reduced};
}

}  // namespace mindloft::Corvane
