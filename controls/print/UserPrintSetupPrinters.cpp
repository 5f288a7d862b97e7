#include <wx/choice.h>

#include <algorithm>
#include <utility>

#include "backend/tessaline/Text.h"
#include "controls/numbers/ucMaskedNumber.h"
#include "controls/print/PaperTables.h"
#include "controls/print/UserPrintSetup.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

constexpr const char* kName = "UserPrintSetup";

/// An item's data is a pointer's room for a number.
void* ItemData(std::uint16_t number) {
  return reinterpret_cast<void*>(static_cast<std::uintptr_t>(number));
}

platform::PaperSize Turned(const platform::PaperSize& size) {
  return {size.height, size.width};
}

}  // namespace

void UserPrintSetup::FillPrinter() try {
  werePrintersAsked_ = true;
  printers_.clear();
  using Answer = std::vector<platform::InstalledPrinter>;
  query_.Ask<Answer>([printers = platform::GetPrinters()] { return printers->Installed(); },
                     [this](Answer answer) { ShowPrinters(std::move(answer)); });
  ShowState();
} catch (...) {
  mindloft::Raise(kName, "FillPrinter");
}

void UserPrintSetup::ShowPrinters(std::vector<platform::InstalledPrinter> printers) {
  printers_ = std::move(printers);
  wxArrayString names;
  for (const platform::InstalledPrinter& printer : printers_) names.push_back(ToWx(printer.name));
  cboPrinter->Set(names);
  const auto usual =
      std::find_if(printers_.begin(), printers_.end(),
                   [](const platform::InstalledPrinter& printer) { return printer.isDefault; });
  if (printerName_.empty() && usual != printers_.end()) printerName_ = ToWx(usual->name);
  SelectPrinter();
}

void UserPrintSetup::SelectPrinter() {
  cboPrinter->SetSelection(cboPrinter->FindString(printerName_, true));
  isPrinterNew_ = false;
  FillPaperSize();
}

void UserPrintSetup::cboPrinter_Click() try {
  printerName_ = PrinterName();
  isPrinterNew_ = true;
  FillPaperSize();
} catch (...) {
  ShowError(kName, "cboPrinter_Click");
}

void UserPrintSetup::FillPaperSize() try {
  papersName_ = PapersName();
  ShowPapers({});
  const int selected = cboPrinter->GetSelection();
  if (selected == wxNOT_FOUND) return;
  const auto ask = [printers = platform::GetPrinters(),
                    printer = printers_.at(static_cast<std::size_t>(selected))] {
    PapersAnswer answer{printers->Papers(printer), true};
    if (!answer.papers.IsEmpty()) return answer;
    const auto installed = printers->Installed();
    answer.isInstalled =
        std::any_of(installed.begin(), installed.end(),
                    [&](const platform::InstalledPrinter& each) { return each.name == printer.name; });
    return answer;
  };
  query_.Ask<PapersAnswer>(ask, [this](PapersAnswer answer) {
    isPrinterGone_ = !answer.isInstalled;
    ShowPapers(std::move(answer.papers));
    SelectCurrentPaper();
  });
  ShowState();
} catch (...) {
  mindloft::Raise(kName, "FillPaperSize");
}

void UserPrintSetup::ShowPapers(platform::PrinterPapers papers) {
  papers_ = std::move(papers);
  ValidatePaper();
  GetPaperMinAndMaxValue();
  cboPaper->Clear();
  for (std::size_t index = 0; index < papers_.Count(); ++index)
    cboPaper->Append(ToWx(papers_.names[index]), ItemData(papers_.numbers[index]));
}

void UserPrintSetup::ValidatePaper() try { mindloft::ValidatePaper(papers_); } catch (...) {
  mindloft::Raise(kName, "ValidatePaper");
}

void UserPrintSetup::GetPaperMinAndMaxValue() try {
  const auto bounds = BoundsOf(papers_);
  if (!bounds) return;
  for (ucMaskedNumber* number : numbers_) number->SetMaxValue(bounds->greatest);
  for (ucMaskedNumber* number : {txtPaperWidth, txtPaperHeight}) number->SetMinValue(bounds->least);
} catch (...) {
  mindloft::Raise(kName, "GetPaperMinAndMaxValue");
}

/// Of a printer that the user has chosen the page takes the present paper; settings that were given keep
/// their size, and the paper that they name if it has that size.
void UserPrintSetup::SelectCurrentPaper() {
  const auto current = std::find(papers_.numbers.begin(), papers_.numbers.end(), papers_.current);
  if (isPrinterNew_ && current != papers_.numbers.end()) {
    const auto index = current - papers_.numbers.begin();
    cboPaper->SetSelection(static_cast<int>(index));
    TakePaperSize(static_cast<std::size_t>(index));
  } else {
    MatchingPaper();
  }
  isPrinterNew_ = false;
}

void UserPrintSetup::cboPaper_Click() try {
  const int selected = cboPaper->GetSelection();
  if (selected != wxNOT_FOUND) TakePaperSize(static_cast<std::size_t>(selected));
} catch (...) {
  ShowError(kName, "cboPaper_Click");
}

void UserPrintSetup::TakePaperSize(std::size_t index) {
  papersName_ = ToWx(papers_.names.at(index));
  platform::PaperSize size = papers_.sizes.at(index);
  if (IsLandscape()) size = Turned(size);
  SetPaperWIdth(size.width);
  SetPaperHeight(size.height);
}

void UserPrintSetup::MatchingPaper() try {
  // Until the printer has told its papers, and where it tells none, a name stands for itself.
  if (!papers_.IsEmpty()) {
    const auto index = MatchingIndex();
    cboPaper->SetSelection(index ? static_cast<int>(*index) : wxNOT_FOUND);
    papersName_ = index ? ToWx(papers_.names[*index]) : wxString();
  }
  ShowState();
} catch (...) {
  mindloft::Raise(kName, "MatchingPaper");
}

std::optional<std::size_t> UserPrintSetup::MatchingIndex() const {
  const platform::PaperSize size{PaperWIdth(), PaperHeight()};
  const auto of = [this](const platform::PaperSize& wanted) {
    return FindPaper(papers_, wanted, ToUtf8(PapersName()));
  };
  auto found = IsLandscape() ? of(Turned(size)) : of(size);
  if (!found && IsLandscape()) found = of(size);
  return found;
}

}  // namespace mindloft
