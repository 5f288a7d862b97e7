#pragma once

#include <wx/panel.h>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "controls/bag/BagControl.h"
#include "controls/print/PageSettings.h"
#include "controls/print/PrinterQuery.h"
#include "core/forms/Form.h"
#include "platform/Printers.h"

class wxChoice;
class wxRadioButton;
class wxStaticText;

namespace mindloft {

class PagePicture;
class ucMaskedNumber;

/// The page setup's panel: printer, paper, paper size, margins and orientation, with a picture of the page.
///
/// Sizes are tenths of a millimetre, as drivers tell them, also those of the number boxes' `MinValue` and
/// `MaxValue`; the boxes show millimetres with one decimal (ucMaskedNumber::UnitsPerShown). Width and height
/// are those of the page as it is read: when the user turns the page they are exchanged, and a paper counts
/// as having the page's size when it has it turned. Setting a property turns nothing.
///
/// The printers are asked by FillPrinter, not before. What they have not answered within a moment is filled
/// in when it comes.
class UserPrintSetup : public wxPanel, public BagControl<UserPrintSetup> {
 public:
  UserPrintSetup() = default;  ///< for XRC; Create follows
  explicit UserPrintSetup(wxWindow* parent, const wxString& name = "UserPrintSetup");
  bool Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size, long style,
              const wxString& name);

  /// None.
  static const PropertyTable<UserPrintSetup>& Properties();

  // A name that is not in its list stays until the user chooses another one.
  wxString PrinterName() const;
  void SetPrinterName(const wxString& name);
  wxString PapersName() const;
  void SetPapersName(const wxString& name);
  std::int32_t PaperWIdth() const;
  void SetPaperWIdth(std::int32_t tenths);
  std::int32_t PaperHeight() const;
  void SetPaperHeight(std::int32_t tenths);
  std::int32_t PaperLeftMargin() const;
  void SetPaperLeftMargin(std::int32_t tenths);
  std::int32_t PaperRightMargin() const;
  void SetPaperRightMargin(std::int32_t tenths);
  std::int32_t PaperTopMargin() const;
  void SetPaperTopMargin(std::int32_t tenths);
  std::int32_t PaperBottomMargin() const;
  void SetPaperBottomMargin(std::int32_t tenths);
  /// 1 portrait, 2 landscape.
  std::int32_t Orientation() const;
  /// Throws TypeMismatch for another number.
  void SetOrientation(std::int32_t orientation);
  /// The same as a text: "1" or "2".
  void SetOrientation(const wxString& orientation);
  /// All nine.
  PageSettings Settings() const;
  /// Sets all nine, then asks for the printers.
  void Load(const PageSettings& settings);

  /// Lists the installed printers and selects the current one, or the user's default one where none was set.
  void FillPrinter();
  /// Lists the papers of the selected printer that ValidatePaper leaves, and selects the printer's current
  /// one.
  void FillPaperSize();
  void ValidatePaper();
  /// Takes the bounds of the number boxes from the papers; nothing when there are none.
  void GetPaperMinAndMaxValue();
  /// Selects the paper that has the present width and height; none when there is no such paper.
  void MatchingPaper();
  /// Whether the margins leave the page its place. When they do not, the left margin gets the focus.
  bool ValidateMargin();
  /// Selects the whole text of the margin's box and puts the focus there.
  void SetMarginFocus(ucMaskedNumber& margin);
  /// Brings every number into its bounds. False when that has changed one, which the user is told.
  bool CheckBounds();
  /// Sets every caption in the current language.
  void LoadInfoOnControl();

 private:
  struct PapersAnswer {
    platform::PrinterPapers papers;
    bool isInstalled = false;
  };

  void FindControls();
  void BindControls();
  void cboPrinter_Click();
  void cboPaper_Click();
  void OnTurned();
  void OnNumberChanged(const ucMaskedNumber& box);
  void OnSizeLeft();
  void ShowPrinters(std::vector<platform::InstalledPrinter> printers);
  void SelectPrinter();
  void ShowPapers(platform::PrinterPapers papers);
  void SelectCurrentPaper();
  /// The entry of the tables that has the present size.
  std::optional<std::size_t> MatchingIndex() const;
  void TakePaperSize(std::size_t index);
  void SetNumber(ucMaskedNumber& box, std::int32_t tenths);
  bool IsLandscape() const;
  /// Shows the page and what there is to say about it; `text` instead of what the printers gave reason for.
  void ShowState(int text = 0);
  wxString StateText(int text) const;
  void ShowHint(const wxString& hint);

  // In the order of their bounds: the two of the paper before the margins.
  std::array<ucMaskedNumber*, 6> numbers_{};
  wxPanel* content_ = nullptr;
  wxChoice* cboPrinter = nullptr;
  wxChoice* cboPaper = nullptr;
  ucMaskedNumber* txtPaperWidth = nullptr;
  ucMaskedNumber* txtPaperHeight = nullptr;
  ucMaskedNumber* txtLeftMargin = nullptr;
  ucMaskedNumber* txtRightMargin = nullptr;
  ucMaskedNumber* txtTopMargin = nullptr;
  ucMaskedNumber* txtBottomMargin = nullptr;
  wxRadioButton* OptPortrait = nullptr;
  wxRadioButton* OptLandscape = nullptr;
  wxStaticText* lblHint = nullptr;
  wxStaticText* lblArea = nullptr;
  PagePicture* picPage = nullptr;

  std::vector<platform::InstalledPrinter> printers_;
  platform::PrinterPapers papers_;
  PrinterQuery query_;
  wxString printerName_;
  wxString papersName_;
  LoadingGuard loading_;
  wxString hint_;
  int shownText_ = 0;
  bool isLandscapeShown_ = false;
  bool werePrintersAsked_ = false;
  bool isPrinterGone_ = false;
  bool isPrinterNew_ = false;  ///< chosen by the user: the page takes its paper
};

}  // namespace mindloft
