#include "controls/richtext/DocumentPrinting.h"

#include <wx/cmndata.h>
#include <wx/print.h>
#include <wx/printdlg.h>
#include <wx/richtext/richtextprint.h>

#include <memory>

#include "backend/tessaline/Services.h"
#include "controls/richtext/PreviewWindow.h"
#include "core/ErrorHandling.h"
#include "platform/ui/MeasuringDC.h"

namespace mindloft {
namespace {

constexpr int kPageOfText = 62124;
constexpr int kPreviewTitle = 62032;
constexpr int kFailed = 62125;

/// Takes the document's copy with it.
class Printout : public wxRichTextPrintout {
 public:
  Printout(const wxString& title, const wxRichTextBuffer& document, const PageSettings& page)
      : wxRichTextPrintout(title), document_(document) {
    SetRichTextBuffer(&document_);
    SetMargins(page.topMargin, page.bottomMargin, page.leftMargin, page.rightMargin);
    wxRichTextHeaderFooterData footer;
    // The language's words around the two numbers, which the component puts in.
    const auto text = GetResource().GetFormatString(kPageOfText, {"@PAGENUM@", "@PAGESCNT@"});
    footer.SetFooterText(text, wxRICHTEXT_PAGE_ALL, wxRICHTEXT_PAGE_CENTRE);
    SetHeaderFooterData(footer);
  }

  /// Lays out the pages by a measure that is right for all scripts: lines of others would be cut off.
  void OnPreparePrinting() override {
    wxDC* const page = GetDC();
    const auto measuring = platform::MakeMeasuringDC(*page);
    if (measuring) SetDC(measuring.get());
    wxRichTextPrintout::OnPreparePrinting();
    SetDC(page);
  }

 private:
  wxRichTextBuffer document_;
};

std::unique_ptr<Printout> MakePrintout(const wxRichTextBuffer& document, const PageSettings& page) {
  return std::make_unique<Printout>(GetResource().GetString(kPreviewTitle), document, page);
}

}  // namespace

void DocumentPrinting::Print(const wxRichTextBuffer& document, bool asks) {
  wxPrintDialogData data(ToPrintData(page_));
  wxPrinter printer(&data);
  const auto printout = MakePrintout(document, page_);
  if (!printer.Print(wxGetTopLevelParent(&parent_), printout.get(), asks) &&
      wxPrinter::GetLastError() == wxPRINTER_ERROR)
    GetMessenger().ShowMessage(kFailed, {}, &parent_);
}

void DocumentPrinting::Preview(const wxRichTextBuffer& document) {
  wxPrintDialogData data(ToPrintData(page_));
  auto preview = std::make_unique<wxPrintPreview>(MakePrintout(document, page_).release(),
                                                  MakePrintout(document, page_).release(), &data);
  if (!preview->IsOk()) {
    GetMessenger().ShowMessage(kFailed, {}, &parent_);
    return;
  }
  ShowPreview(wxGetTopLevelParent(&parent_), std::move(preview), GetResource().GetString(kPreviewTitle));
}

}  // namespace mindloft
