#include "controls/richtext/RichEditor.h"

#include <wx/clipbrd.h>
#include <wx/dcclient.h>
#include <wx/settings.h>

#include <algorithm>

#include "backend/tessaline/Services.h"
#include "controls/richtext/BufferXml.h"
#include "controls/richtext/CellFonts.h"
#include "controls/richtext/CellKeys.h"
#include "controls/richtext/FragmentData.h"
#include "controls/richtext/GridLines.h"
#include "controls/richtext/OwnAlignment.h"
#include "controls/richtext/RichUnits.h"
#include "controls/richtext/SeenPlaces.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

/// Characters beyond which a new width is laid out for the visible part first, and for the rest when the user
/// rests.
constexpr long kLargeText = 20'000;
constexpr int kSpaceAround = 5;

/// When the end of a text has been taken back, the toolkit looks for the paragraph behind it, finds none and
/// lays out the whole text.
void KeepInvalidRangeInText(wxRichTextBuffer& buffer) {
  const wxRichTextRange invalid = buffer.GetInvalidRange();
  const long end = buffer.GetOwnRange().GetEnd();
  if (invalid != wxRICHTEXT_ALL && invalid != wxRICHTEXT_NONE && invalid.GetStart() > end)
    buffer.Invalidate(wxRichTextRange(end, end));
}

}  // namespace

RichEditor::RichEditor(wxWindow* parent, const wxString& name)
    : wxRichTextCtrl(parent, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                     wxRE_MULTILINE | wxWANTS_CHARS | wxBORDER_THEME, wxDefaultValidator, name) {
  // Paper is white, whatever the theme.
  SetBackgroundColour(*wxWHITE);
  SetDelayedLayoutThreshold(kLargeText);
  EnableImages(false);
  RegisterBufferXml();
  SetDropTarget(new FragmentDropTarget(*this));
  SetLayoutDirection(wxLayout_LeftToRight);
  UseBaseStyle();
  BindChanges();
  BindMouse();
  Bind(wxEVT_CHAR, &RichEditor::OnTyped, this);
}

void RichEditor::UseBaseStyle() {
  wxRichTextAttr style;
  style.SetFont(wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT));
  style.SetTextColour(*wxBLACK);
  style.SetAlignment(GetResource().IsRightToLeft() ? wxTEXT_ALIGNMENT_RIGHT : wxTEXT_ALIGNMENT_LEFT);
  style.SetLineSpacing(wxTEXT_ATTR_LINE_SPACING_NORMAL);
  style.SetParagraphSpacingAfter(0);
  style.SetParagraphSpacingBefore(0);
  style.Apply(baseLook_);
  SetBasicStyle(style);
  GiveOwnAlignment(GetBuffer(), style);
  SetMargins(kSpaceAround);
}

void RichEditor::BindChanges() {
  for (const auto& type : {wxEVT_RICHTEXT_CONTENT_INSERTED, wxEVT_RICHTEXT_CONTENT_DELETED,
                           wxEVT_RICHTEXT_STYLE_CHANGED, wxEVT_RICHTEXT_PROPERTIES_CHANGED}) {
    Bind(type, [this](wxRichTextEvent& event) {
      event.Skip();
      TellChange();
    });
  }
}

void RichEditor::BindMouse() {
  for (const auto& type : {wxEVT_LEFT_DOWN, wxEVT_LEFT_UP, wxEVT_LEFT_DCLICK, wxEVT_MOTION}) {
    Bind(type, [this](wxMouseEvent& event) {
      event.Skip();
      if (!event.Moving()) AimMouse(*this, event);
    });
  }
}

void RichEditor::PositionCaret(wxRichTextParagraphLayoutBox* container) {
  wxRichTextCtrl::PositionCaret(container);
  ShowCaretAsSeen(*this);
}

bool RichEditor::KeyboardNavigate(int keyCode, int flags) {
  switch (keyCode) {
    case WXK_LEFT:
    case WXK_NUMPAD_LEFT:
      return wxRichTextCtrl::KeyboardNavigate(RunsToTheLeftAtCaret(*this) ? WXK_RIGHT : keyCode, flags);
    case WXK_RIGHT:
    case WXK_NUMPAD_RIGHT:
      return wxRichTextCtrl::KeyboardNavigate(RunsToTheLeftAtCaret(*this) ? WXK_LEFT : keyCode, flags);
    case WXK_UP:
    case WXK_NUMPAD_UP:
      AimCaret(*this, -1);
      break;
    case WXK_DOWN:
    case WXK_NUMPAD_DOWN:
      AimCaret(*this, 1);
      break;
    default:
      break;
  }
  return wxRichTextCtrl::KeyboardNavigate(keyCode, flags);
}

void RichEditor::TellChange() {
  if (replacing_ > 0 || !changed) return;
  changed();
}

void RichEditor::LeaveCells() {
  SetFocusObject(&GetBuffer(), false);
}

void RichEditor::ReplaceContent(const std::function<void()>& load) {
  ++replacing_;
  Freeze();
  LeaveCells();
  SelectNone();
  try {
    load();
    GiveOwnAlignment(GetBuffer(), GetBasicStyle());
  } catch (...) {
    Thaw();
    --replacing_;
    throw;
  }
  GetCommandProcessor()->ClearCommands();
  LeaveCells();
  SetInsertionPoint(0);
  Thaw();
  DiscardEdits();
  --replacing_;
}

void RichEditor::SetLayoutDirection(wxLayoutDirection) {
  wxRichTextCtrl::SetLayoutDirection(wxLayout_LeftToRight);
}

void RichEditor::Undo() {
  LeaveCells();
  wxRichTextCtrl::Undo();
  GiveCellsFont(*this);
  TellChange();
}

void RichEditor::Redo() {
  LeaveCells();
  wxRichTextCtrl::Redo();
  GiveCellsFont(*this);
  TellChange();
}

void RichEditor::Clear() {
  LeaveCells();
  wxRichTextCtrl::Clear();
  GiveOwnAlignment(GetBuffer(), GetBasicStyle());
}

bool RichEditor::CanPaste() const {
  if (!IsEditable()) return false;
  if (HasClipboardFragment()) return true;
  const wxClipboardLocker lock;
  return !lock ? false
               : wxTheClipboard->IsSupported(wxDF_UNICODETEXT) || wxTheClipboard->IsSupported(wxDF_TEXT);
}

void RichEditor::Paste() {
  if (!CanPaste()) return;
  if (!HasClipboardFragment()) return wxRichTextCtrl::Paste();
  const auto fragment = ClipboardFragment();
  if (!fragment) return;
  GiveOwnAlignment(*fragment, GetBasicStyle());
  BeginBatchUndo(wxString());
  long place = GetCaretPosition();
  DeleteSelectedContent(&place);
  GetFocusObject()->InsertParagraphsWithUndo(&GetBuffer(), place + 1, *fragment, this, 0);
  ShowPosition(place + fragment->GetOwnRange().GetEnd());
  EndBatchUndo();
}

void RichEditor::SetPageWidth(int tenths) {
  if (pageWidth_ == tenths) return;
  pageWidth_ = tenths;
  Invalidate();
  LayoutContent();
  Refresh();
}

void RichEditor::SetGridLines(bool shown) {
  gridLines_ = shown;
  Refresh();
}

void RichEditor::SetZoomFactor(double factor) {
  SetScale(factor, true);
}

void RichEditor::DoLayoutBuffer(wxRichTextBuffer& buffer, wxDC& dc, wxRichTextDrawingContext& context,
                                const wxRect& rect, const wxRect& parentRect, int flags) {
  wxRect page = rect;
  if (pageWidth_ > 0) page.width = std::min(page.width, TenthsToPixels(pageWidth_, *this));
  KeepInvalidRangeInText(buffer);
  wxRichTextCtrl::DoLayoutBuffer(buffer, dc, context, page, parentRect, flags);
}

void RichEditor::PaintAboveContent(wxDC& dc) {
  if (gridLines_) DrawGridLines(*this, dc);
}

long RichEditor::SelectionStart() const {
  long from = 0;
  long to = 0;
  GetSelection(&from, &to);
  return from == to || from < 0 ? GetInsertionPoint() : from;
}

long RichEditor::SelectionLength() const {
  long from = 0;
  long to = 0;
  GetSelection(&from, &to);
  return from < 0 ? 0 : std::max(0L, to - from);
}

long RichEditor::EndPlace() const {
  // The last place of a text is the mark that ends its last paragraph.
  return std::max(0L, GetFocusObject()->GetOwnRange().GetEnd());
}

void RichEditor::SelectText(long start, long length) {
  const long last = EndPlace();
  start = std::clamp(start, 0L, last);
  length = std::clamp(length, 0L, last - start);
  SetInsertionPoint(start);
  if (length > 0) {
    SetSelection(start, start + length);
    MoveCaret(start + length - 1);
  } else {
    SelectNone();
  }
}

void RichEditor::PutSelection(const wxString& text) {
  const long start = SelectionStart();
  const long length = SelectionLength();
  BeginBatchUndo(wxString());
  // What comes in looks like what it replaces.
  SetInsertionPoint(length > 0 ? start + 1 : start);
  SetDefaultStyleToCursorStyle();
  const wxRichTextAttr style = GetDefaultStyleEx();
  if (length > 0) Delete(wxRichTextRange(start, start + length));
  SetInsertionPoint(start);
  if (!text.empty()) {
    SetDefaultStyle(style);
    WriteText(text);
  }
  EndBatchUndo();
}

void RichEditor::OnTyped(wxKeyEvent& event) {
  event.Skip();
  const int key = static_cast<int>(event.GetUnicodeKey());
  const bool types = key >= WXK_SPACE && key != WXK_DELETE && !event.AltDown() &&
                     (!event.ControlDown() || event.GetModifiers() == (wxMOD_CONTROL | wxMOD_ALT));
  if (!types || !IsEditable() || HasSelection()) return;
  BeginParagraphBesideTable(*this);
  if (!overwrite_) return;
  const long place = GetInsertionPoint();
  // The end of a paragraph is not overwritten.
  const wxString next = GetFocusObject()->GetTextForRange(wxRichTextRange(place, place));
  if (place < EndPlace() && next.length() == 1 && next[0] != '\n') SetSelection(place, place + 1);
}

RichEditor::Place RichEditor::CurrentPlace() const {
  Place place{GetFocusObject(), GetCaretPosition(), 0, 0};
  GetSelection(&place.start, &place.end);
  return place;
}

void RichEditor::OnInternalIdle() {
  wxRichTextCtrl::OnInternalIdle();
  if (replacing_ > 0 || IsBeingDeleted()) return;
  const Place present = CurrentPlace();
  if (present == told_) return;
  told_ = present;
  if (moved) moved();
}

}  // namespace mindloft
