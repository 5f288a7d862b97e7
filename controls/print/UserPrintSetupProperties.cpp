#include <wx/choice.h>
#include <wx/radiobut.h>

#include "controls/numbers/ucMaskedNumber.h"
#include "controls/print/UserPrintSetup.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

constexpr const char* kName = "UserPrintSetup";

}  // namespace

wxString UserPrintSetup::PrinterName() const {
  const int selected = cboPrinter->GetSelection();
  return selected == wxNOT_FOUND ? printerName_ : cboPrinter->GetString(static_cast<unsigned>(selected));
}

void UserPrintSetup::SetPrinterName(const wxString& name) try {
  printerName_ = name;
  if (werePrintersAsked_) SelectPrinter();
} catch (...) {
  mindloft::Raise(kName, "PrinterName");
}

wxString UserPrintSetup::PapersName() const {
  const int selected = cboPaper->GetSelection();
  return selected == wxNOT_FOUND ? papersName_ : cboPaper->GetString(static_cast<unsigned>(selected));
}

void UserPrintSetup::SetPapersName(const wxString& name) try {
  papersName_ = name;
  cboPaper->SetSelection(cboPaper->FindString(name, true));
  ShowState();
} catch (...) {
  mindloft::Raise(kName, "PapersName");
}

std::int32_t UserPrintSetup::PaperWIdth() const {
  return txtPaperWidth->Value();
}
void UserPrintSetup::SetPaperWIdth(std::int32_t tenths) {
  SetNumber(*txtPaperWidth, tenths);
}

std::int32_t UserPrintSetup::PaperHeight() const {
  return txtPaperHeight->Value();
}
void UserPrintSetup::SetPaperHeight(std::int32_t tenths) {
  SetNumber(*txtPaperHeight, tenths);
}

std::int32_t UserPrintSetup::PaperLeftMargin() const {
  return txtLeftMargin->Value();
}
void UserPrintSetup::SetPaperLeftMargin(std::int32_t tenths) {
  SetNumber(*txtLeftMargin, tenths);
}

std::int32_t UserPrintSetup::PaperRightMargin() const {
  return txtRightMargin->Value();
}
void UserPrintSetup::SetPaperRightMargin(std::int32_t tenths) {
  SetNumber(*txtRightMargin, tenths);
}

std::int32_t UserPrintSetup::PaperTopMargin() const {
  return txtTopMargin->Value();
}
void UserPrintSetup::SetPaperTopMargin(std::int32_t tenths) {
  SetNumber(*txtTopMargin, tenths);
}

std::int32_t UserPrintSetup::PaperBottomMargin() const {
  return txtBottomMargin->Value();
}
void UserPrintSetup::SetPaperBottomMargin(std::int32_t tenths) {
  SetNumber(*txtBottomMargin, tenths);
}

void UserPrintSetup::SetNumber(ucMaskedNumber& box, std::int32_t tenths) try {
  const LoadingGuard::Lock lock(loading_);
  box.SetValue(tenths);
  ShowState();
} catch (...) {
  mindloft::Raise(kName, "SetNumber");
}

bool UserPrintSetup::IsLandscape() const {
  return OptLandscape->GetValue();
}

std::int32_t UserPrintSetup::Orientation() const {
  return static_cast<std::int32_t>(IsLandscape() ? PageOrientation::Landscape : PageOrientation::Portrait);
}

void UserPrintSetup::SetOrientation(std::int32_t orientation) try {
  isLandscapeShown_ = ReadOrientation(orientation) == PageOrientation::Landscape;
  (isLandscapeShown_ ? OptLandscape : OptPortrait)->SetValue(true);
  ShowState();
} catch (...) {
  mindloft::Raise(kName, "Orientation");
}

void UserPrintSetup::SetOrientation(const wxString& orientation) try {
  SetOrientation(static_cast<std::int32_t>(ReadOrientation(orientation)));
} catch (...) {
  mindloft::Raise(kName, "Orientation");
}

PageSettings UserPrintSetup::Settings() const {
  PageSettings settings;
  settings.printerName = PrinterName();
  settings.papersName = PapersName();
  settings.paperWidth = PaperWIdth();
  settings.paperHeight = PaperHeight();
  settings.leftMargin = PaperLeftMargin();
  settings.rightMargin = PaperRightMargin();
  settings.topMargin = PaperTopMargin();
  settings.bottomMargin = PaperBottomMargin();
  settings.orientation = static_cast<PageOrientation>(Orientation());
  return settings;
}

void UserPrintSetup::Load(const PageSettings& settings) try {
  SetPaperWIdth(settings.paperWidth);
  SetPaperHeight(settings.paperHeight);
  SetPaperLeftMargin(settings.leftMargin);
  SetPaperRightMargin(settings.rightMargin);
  SetPaperTopMargin(settings.topMargin);
  SetPaperBottomMargin(settings.bottomMargin);
  SetOrientation(static_cast<std::int32_t>(settings.orientation));
  SetPapersName(settings.papersName);
  printerName_ = settings.printerName;
  FillPrinter();
} catch (...) {
  mindloft::Raise(kName, "Load");
}

}  // namespace mindloft
