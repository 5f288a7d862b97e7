#pragma once

#include "controls/print/PageSettings.h"
#include "core/Refresh.h"
#include "core/forms/Form.h"

class wxButton;

namespace mindloft {

class UserPrintSetup;

/// Asks on what paper, and where on it, is printed.
///
///   frmPageSetup form(this);
///   if (form.ShowPageSetup(LoadPageSettings())) SavePageSettings(form.Settings());
///
/// Sizes are tenths of a millimetre.
class frmPageSetup : public FormDialog {
 public:
  explicit frmPageSetup(wxWindow* owner);

  /// Shows the dialog, modal, with the settings; whether OK was pressed. The properties are what was given,
  /// or, after OK, what the user chose.
  bool ShowPageSetup(const PageSettings& settings);
  /// Selects the paper that has the width and height that are shown.
  void MatchingPaper();
  bool Accepted() const { return accepted_; }
  /// The nine properties in one.
  const PageSettings& Settings() const { return settings_; }

  const wxString& PrinterName() const { return settings_.printerName; }
  void SetPrinterName(const wxString& name) { settings_.printerName = name; }
  const wxString& PapersName() const { return settings_.papersName; }
  void SetPapersName(const wxString& name) { settings_.papersName = name; }
  std::int32_t PaperWIdth() const { return settings_.paperWidth; }
  void SetPaperWIdth(std::int32_t tenths) { settings_.paperWidth = tenths; }
  std::int32_t PaperHeight() const { return settings_.paperHeight; }
  void SetPaperHeight(std::int32_t tenths) { settings_.paperHeight = tenths; }
  std::int32_t PaperLeftMargin() const { return settings_.leftMargin; }
  void SetPaperLeftMargin(std::int32_t tenths) { settings_.leftMargin = tenths; }
  std::int32_t PaperRightMargin() const { return settings_.rightMargin; }
  void SetPaperRightMargin(std::int32_t tenths) { settings_.rightMargin = tenths; }
  std::int32_t PaperTopMargin() const { return settings_.topMargin; }
  void SetPaperTopMargin(std::int32_t tenths) { settings_.topMargin = tenths; }
  std::int32_t PaperBottomMargin() const { return settings_.bottomMargin; }
  void SetPaperBottomMargin(std::int32_t tenths) { settings_.bottomMargin = tenths; }
  /// 1 portrait, 2 landscape; see UserPrintSetup.
  std::int32_t Orientation() const { return static_cast<std::int32_t>(settings_.orientation); }
  void SetOrientation(std::int32_t orientation);
  void SetOrientation(const wxString& orientation);

  // For those who only read.
  const wxString& GetPrinterName() const { return PrinterName(); }
  const wxString& GetPapersName() const { return PapersName(); }
  std::int32_t GetPaperWidth() const { return PaperWIdth(); }
  std::int32_t GetPaperHeight() const { return PaperHeight(); }
  std::int32_t GetPaperLeftMargin() const { return PaperLeftMargin(); }
  std::int32_t GetPaperRightMargin() const { return PaperRightMargin(); }
  std::int32_t GetPaperTopMargin() const { return PaperTopMargin(); }
  std::int32_t GetPaperBottomMargin() const { return PaperBottomMargin(); }
  std::int32_t GetOrientation() const { return Orientation(); }

  void LoadInfoOnForm() override;

 private:
  void Refresh_NotifyLanguage();
  void cmdOK_Click();
  void CmdCancel_Click();

  PageSettings settings_;
  UserPrintSetup* PrintSetup = nullptr;
  bool accepted_ = false;
  mindloft::Refresh::Subscription language_;
};

/// Lets the user choose the page; false, and no change, when they cancelled. What was chosen is kept for the
/// user.
bool AskForPage(wxWindow& parent, PageSettings& page);

}  // namespace mindloft
