#pragma once

#include "controls/print/PageSettings.h"

class wxRichTextBuffer;
class wxWindow;

namespace mindloft {

/// Prints documents on the pages of these settings, each with its number below the text.
class DocumentPrinting {
 public:
  DocumentPrinting(wxWindow& parent, const PageSettings& page) : parent_(parent), page_(page) {}

  /// Prints, after asking for the printer and the pages unless `asks` is false; a failure is told.
  void Print(const wxRichTextBuffer& document, bool asks = true);
  /// Shows the pages in a window of their own, from which they can be printed.
  void Preview(const wxRichTextBuffer& document);

 private:
  wxWindow& parent_;
  PageSettings page_;
};

}  // namespace mindloft
