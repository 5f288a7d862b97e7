#pragma once

#include <wx/compositewin.h>
#include <wx/panel.h>
#include <wx/weakref.h>

#include <cstdint>
#include <memory>

#include "controls/bag/BagControl.h"
#include "controls/print/PageSettings.h"
#include "controls/richtext/Document.h"
#include "controls/richtext/FindText.h"
#include "controls/richtext/RichEditor.h"
#include "controls/richtext/RichTextEvents.h"

namespace mindloft {

class ButtonBar;
class EditorStatusBar;
class Ruler;
class frmFindText;

/// The view modes.
inline constexpr std::int16_t kNormalView = 0;  ///< lines end at the edge of the window
inline constexpr std::int16_t kPageView = 1;    ///< lines end where they do on the printed page

/// The codes of Clip.
inline constexpr std::int16_t kClipCut = 1;
inline constexpr std::int16_t kClipCopy = 2;
inline constexpr std::int16_t kClipPaste = 3;
inline constexpr std::int16_t kClipDelete = 4;

/// What the two rich-text controls share: the editor `TXTextControl` with the button bar `TXButtonBar` and
/// the ruler `TXRuler` above it and the status bar `TXStatusBar1` below, and the commands on them.
class RichTextControl : public wxCompositeWindowSettersOnly<wxPanel>,
                        public KeepsProperties,
                        public RichTextEvents {
 public:
  ~RichTextControl() override;

  wxString Text() const;
  /// Puts a plain text in place of the document; this cannot be undone.
  void SetText(const wxString& text);
  /// The document with its formats, to be loaded and stored.
  Document& Content() { return document_; }
  bool GetEnable() const { return IsThisEnabled(); }
  void SetEnable(bool enable);
  std::int16_t ViewMode() const { return viewMode_; }
  /// Throws Overflow for another than the two modes.
  void SetViewMode(std::int16_t mode);
  bool GridLines() const;
  void SetGridLines(bool shown);
  bool Locked() const { return isLocked_; }
  void SetLocked(bool locked);
  bool StatueBarVisible() const { return isStatusBarVisible_; }
  void SetStatueBarVisible(bool visible);
  bool RulerBarVisible() const { return isRulerVisible_; }
  void SetRulerBarVisible(bool visible);
  // Places in the part of the text that the caret is in, from 0; those past the end become the end.
  long SelStart() const;
  void SetSelStart(long place);
  long Sellength() const;
  void SetSellength(long length);
  const PageSettings& Page() const { return page_; }
  void SetPage(const PageSettings& page);

  void Undo();
  void Redo();
  /// Opens the window to search in, with this text and these options; an empty text is the selected one.
  void Find(const wxString& text = {}, FindOptions options = {});
  void FindReplace();
  /// Per cent, 10 to 400; others become the nearest of these.
  void Zoom(std::int16_t perCent);
  std::int16_t ZoomFactor() const;
  void FontDialog();
  void ParagraphDialog();
  void StytlesDialog();
  void TabsDialog();
  void ListAttribute();
  /// Whether the caret is in a cell, and the table may be changed.
  bool CanModifyTable() const;
  // The next three do nothing outside a table, the deletions also when it is the last column or row. New
  // columns and rows come before the caret's.
  void InsertColumn();
  void InsertRow();
  void DeleteColumn();
  void DeleteRow();
  void TableProperties();
  /// kClipCut, kClipCopy, kClipPaste or kClipDelete; other codes do nothing.
  void Clip(std::int16_t code);
  /// Asks for rows and columns and puts a table at the caret.
  void NewTable();
  void PageSetup();
  void PrintPreview();
  void Print();

  // Kept so that callers may call them.
  void InsertTable() {}
  void DeleteTable() {}
  void InsertImage() {}
  void InsertMyImage() {}
  void AppendText() {}
  void HeaderFoot() {}
  void ForeColordialog() {}
  void TextColor() {}

  RichEditor& Editor() const { return *TXTextControl; }
  /// Lets the bars show what holds at the caret now.
  void UpdateBars();
  void LoadInfoOnControl();

 protected:
  /// `className` is the control's in error reports.
  explicit RichTextControl(const char* className);
  void CreateParts(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size, long style,
                   const wxString& name);
  virtual bool IsButtonBarVisible() const { return true; }
  /// Called for presses of a mouse button in the editor; false when the control is no longer there.
  virtual bool OnMouseDown(int, int, int, int) { return true; }
  void UserControl_Resize();
  /// Runs a property's procedure and records the change; its errors are reported and thrown on.
  template <typename Procedure>
  void SetProperty(const char* property, Procedure procedure) {
    Run(property, procedure);
    PropertyChanged();
  }
  /// Runs a command; its errors are reported and thrown on.
  template <typename Procedure>
  void Run(const char* command, Procedure procedure) const {
    try {
      procedure();
    } catch (...) {
      RaiseFor(command);
    }
  }
  const char* ClassName() const { return className_; }
  void DoEnable(bool enable) override;
  wxSize DoGetBestClientSize() const override;
  wxWindowList GetCompositeWindowParts() const override;

 private:
  [[noreturn]] void RaiseFor(const char* procedure) const;
  void BindEditor();
  void BindMouse();
  void OnChanged();
  void OnMoved();
  void ApplyPage();
  void ChangeText(const char* command, const std::function<void()>& change);
  void ShowFind(bool replaces, const wxString& text, FindOptions options);

  const char* className_;
  RichEditor* TXTextControl = nullptr;
  ButtonBar* TXButtonBar = nullptr;
  Ruler* TXRuler = nullptr;
  EditorStatusBar* TXStatusBar1 = nullptr;
  Document document_;
  PageSettings page_;
  wxWeakRef<wxWindow> find_;
  std::int16_t viewMode_ = kNormalView;
  bool isLocked_ = false;
  bool isStatusBarVisible_ = true;
  bool isRulerVisible_ = true;
};

}  // namespace mindloft
