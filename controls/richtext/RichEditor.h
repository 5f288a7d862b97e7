#pragma once

#include <wx/richtext/richtextctrl.h>

#include <functional>

namespace mindloft {

/// The toolkit's rich-text box, made safe: its caret never stays in a cell that is gone, pictures and files
/// do not come in, keys overwrite when they are to, and the page's width may decide where lines end. Text
/// runs from left to right here even in a mirrored form: the toolkit would mirror its glyphs.
class RichEditor : public wxRichTextCtrl {
 public:
  RichEditor(wxWindow* parent, const wxString& name);

  /// The text or a format has changed, by whomever; not while a document is being loaded.
  std::function<void()> changed;
  /// Caret or selection stand elsewhere; told when the toolkit has nothing else to do.
  std::function<void()> moved;

  /// For whatever replaces or frees parts of the text: the caret goes to the main text, which always stays.
  void LeaveCells();
  /// Runs something that replaces the whole text; what it did cannot be undone, and is told once, by the
  /// caller.
  void ReplaceContent(const std::function<void()>& load);

  /// What a text that has no format looks like instead of the system's font in black; an empty format: that
  /// again. Holds for texts that are loaded from now on, and becomes their own when they are stored.
  void SetBaseLook(const wxRichTextAttr& look) { baseLook_ = look; }
  /// The format of a text that has none: the base look, to the right where the language runs so.
  void UseBaseStyle();

  /// In tenths of a millimetre between the margins of a page; 0: lines end at the window's edge. A window
  /// that is smaller than the page ends them earlier.
  void SetPageWidth(int tenths);
  int PageWidth() const { return pageWidth_; }
  /// Shows where the cells of tables without borders are.
  void SetGridLines(bool shown);
  bool GridLines() const { return gridLines_; }
  /// Typed characters take the place of those at the caret.
  void SetOverwrite(bool overwrite) { overwrite_ = overwrite; }
  bool IsOverwriting() const { return overwrite_; }
  double ZoomFactor() const { return GetScale(); }
  void SetZoomFactor(double factor);

  // Places of the text in which the caret is (the main text or a cell), from 0; a table counts as one.
  long SelectionStart() const;
  long SelectionLength() const;
  /// Places past the end become the end.
  void SelectText(long start, long length);
  /// Replaces the selection, as if it had been typed.
  void PutSelection(const wxString& text);
  /// The last place of the text in which the caret is.
  long EndPlace() const;

  void Undo() override;
  void Redo() override;
  void Clear() override;
  void Paste() override;
  bool CanPaste() const override;
  bool CanUndo() const override { return IsEditable() && wxRichTextCtrl::CanUndo(); }
  bool CanRedo() const override { return IsEditable() && wxRichTextCtrl::CanRedo(); }
  void SetLayoutDirection(wxLayoutDirection direction) override;
  void DoLayoutBuffer(wxRichTextBuffer& buffer, wxDC& dc, wxRichTextDrawingContext& context,
                      const wxRect& rect, const wxRect& parentRect, int flags) override;
  void PaintAboveContent(wxDC& dc) override;
  void OnInternalIdle() override;
  void PositionCaret(wxRichTextParagraphLayoutBox* container = nullptr) override;
  bool KeyboardNavigate(int keyCode, int flags) override;

 private:
  /// Where caret and selection were told to be.
  struct Place {
    const void* text = nullptr;
    long caret = 0;
    long start = 0;
    long end = 0;
    bool operator==(const Place&) const = default;
  };

  Place CurrentPlace() const;
  void TellChange();
  void BindChanges();
  void BindMouse();
  void OnTyped(wxKeyEvent& event);

  Place told_;
  wxRichTextAttr baseLook_;
  int pageWidth_ = 0;
  bool gridLines_ = true;
  bool overwrite_ = false;
  int replacing_ = 0;
};

}  // namespace mindloft
