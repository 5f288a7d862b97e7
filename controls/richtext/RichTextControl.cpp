#include "controls/richtext/RichTextControl.h"

#include <wx/dcclient.h>

#include <algorithm>

#include "backend/tessaline/Services.h"
#include "controls/ControlKeys.h"
#include "controls/buttons/RaiseEvent.h"
#include "controls/richtext/ButtonBar.h"
#include "controls/richtext/CellKeys.h"
#include "controls/richtext/EditCommands.h"
#include "controls/richtext/EditorStatusBar.h"
#include "controls/richtext/Ruler.h"
#include "controls/richtext/frmFindText.h"
#include "core/ErrorHandling.h"
#include "platform/ui/Metrics.h"

namespace mindloft {

RichTextControl::RichTextControl(const char* className) : className_(className) {}

RichTextControl::~RichTextControl() {
  if (find_) find_->Destroy();
}

void RichTextControl::CreateParts(wxWindow* parent, wxWindowID id, const wxPoint& position,
                                  const wxSize& size, long style, const wxString& name) {
  Create(parent, id, position, size, style | wxTAB_TRAVERSAL, name);
  page_ = LoadPageSettings();
  TXButtonBar = new ButtonBar(this, "TXButtonBar");
  TXRuler = new Ruler(this, "TXRuler");
  TXTextControl = new RichEditor(this, "TXTextControl");
  TXStatusBar1 = new EditorStatusBar(this, "TXStatusBar1");
  document_.SetEditor(TXTextControl);
  TXRuler->SetEditor(TXTextControl);
  SetInitialSize(size);
  BindEditor();
  BindMouse();
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    Guarded(className_, "UserControl_Resize", [this] { UserControl_Resize(); });
  });
  UserControl_Resize();
}

void RichTextControl::RaiseFor(const char* procedure) const {
  mindloft::Raise(className_, procedure);
}

void RichTextControl::BindEditor() {
  TXTextControl->changed = [this] { OnChanged(); };
  TXTextControl->moved = [this] { OnMoved(); };
  TXTextControl->Bind(wxEVT_KEY_UP, [this](wxKeyEvent& event) {
    int key = ControlKeyCode(event);
    // A handler that destroys the control leaves nobody to pass the event on to.
    if (RaiseEvent(*this, className_, "KeyUp", KeyUp, key, ShiftState(event))) event.Skip();
  });
  TXTextControl->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
    bool isDone = RunCommandOfKey(*this, event);
    if (!isDone) Guarded(className_, "KeyDown", [&] { isDone = RunCellKey(*TXTextControl, event); });
    if (!isDone) event.Skip();
  });
  // Tab types, or goes through a table; with Ctrl it leaves the text, whatever notebook the control stands
  // in.
  TXTextControl->Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
    if (event.GetKeyCode() != WXK_TAB || !event.RawControlDown() || event.AltDown()) return event.Skip();
    TXTextControl->Navigate(event.ShiftDown() ? wxNavigationKeyEvent::IsBackward
                                              : wxNavigationKeyEvent::IsForward);
  });
  TXTextControl->Bind(wxEVT_CONTEXT_MENU, [this](wxContextMenuEvent&) {
    Guarded(className_, "ShowMenu", [this] { ShowEditMenu(*this); });
  });
}

void RichTextControl::BindMouse() {
  struct MouseButton {
    wxEventTypeTag<wxMouseEvent> down;
    wxEventTypeTag<wxMouseEvent> up;
    int number;
  };
  const MouseButton buttons[] = {{wxEVT_LEFT_DOWN, wxEVT_LEFT_UP, 1},
                                 {wxEVT_RIGHT_DOWN, wxEVT_RIGHT_UP, 2},
                                 {wxEVT_MIDDLE_DOWN, wxEVT_MIDDLE_UP, 4}};
  const auto twips = [this](const wxMouseEvent& event) {
    const wxPoint place = event.GetPosition() + TXTextControl->GetPosition();
    return wxPoint(platform::PixelsToTwipsX(place.x, this), platform::PixelsToTwipsY(place.y, this));
  };
  for (const MouseButton& button : buttons) {
    TXTextControl->Bind(button.down, [this, button, twips](wxMouseEvent& event) {
      const wxPoint place = twips(event);
      if (OnMouseDown(button.number, ShiftState(event), place.x, place.y)) event.Skip();
    });
    TXTextControl->Bind(button.up, [this, button, twips](wxMouseEvent& event) {
      const wxPoint place = twips(event);
      if (RaiseEvent(*this, className_, "MouseUp", MouseUp, button.number, ShiftState(event), place.x,
                     place.y))
        event.Skip();
    });
  }
}

void RichTextControl::OnChanged() {
  if (RaiseEvent(*this, className_, "Change", Change))
    Guarded(className_, "Change", [this] { UpdateBars(); });
}

void RichTextControl::OnMoved() {
  if (RaiseEvent(*this, className_, "PosChange", PosChange))
    Guarded(className_, "PosChange", [this] { UpdateBars(); });
}

void RichTextControl::UpdateBars() {
  if (isStatusBarVisible_) TXStatusBar1->Show(*this);
  if (IsButtonBarVisible()) TXButtonBar->ShowState(*this);
  if (isRulerVisible_) TXRuler->Update();
}

void RichTextControl::UserControl_Resize() {
  if (!TXStatusBar1) return;
  const wxSize room = GetClientSize();
  TXButtonBar->Show(IsButtonBarVisible());
  TXRuler->Show(isRulerVisible_);
  TXStatusBar1->wxWindow::Show(isStatusBarVisible_);
  int top = 0;
  if (IsButtonBarVisible()) {
    const int height = TXButtonBar->Arrange(room.x);
    TXButtonBar->SetSize(0, top, room.x, height);
    top += height;
  }
  if (isRulerVisible_) {
    const int height = TXRuler->GetBestSize().y;
    TXRuler->SetSize(0, top, room.x, height);
    top += height;
  }
  const int below = isStatusBarVisible_ ? TXStatusBar1->GetBestSize().y : 0;
  // The editor needs room for a line and its scroll bar, even when that is cut off.
  const int least = 3 * GetCharHeight();
  const int height = std::max(room.y - top - below, least);
  TXTextControl->SetSize(0, top, std::max(room.x, least), height);
  if (below > 0) TXStatusBar1->SetSize(0, top + height, room.x, below);
  UpdateBars();
}

wxWindowList RichTextControl::GetCompositeWindowParts() const {
  wxWindowList parts;
  if (TXTextControl) parts.push_back(TXTextControl);
  return parts;
}

wxSize RichTextControl::DoGetBestClientSize() const {
  constexpr int kWidth = 300;
  constexpr int kHeight = 200;
  return FromDIP(wxSize(kWidth, kHeight));
}

void RichTextControl::DoEnable(bool enable) {
  wxCompositeWindowSettersOnly<wxPanel>::DoEnable(enable);
  for (wxWindow* child : GetChildren()) child->Enable(enable);
}

void RichTextControl::LoadInfoOnControl() {
  Run("LoadInfoOnControl", [&] {
    TXButtonBar->LoadTexts();
    UserControl_Resize();
  });
}

wxString RichTextControl::Text() const {
  return TXTextControl->GetValue();
}

void RichTextControl::SetText(const wxString& text) {
  SetProperty("Text", [&] {
    TXTextControl->ReplaceContent([&] { TXTextControl->ChangeValue(text); });
    OnChanged();
  });
}

void RichTextControl::SetEnable(bool enable) {
  SetProperty("Enable", [&] { Enable(enable); });
}

void RichTextControl::SetViewMode(std::int16_t mode) {
  SetProperty("ViewMode", [&] {
    if (mode != kNormalView && mode != kPageView)
      throw Error(ErrorNumber::Overflow, "there is no such view mode");
    viewMode_ = mode;
    ApplyPage();
  });
}

void RichTextControl::SetPage(const PageSettings& page) {
  Run("Page", [&] {
    page_ = page;
    ApplyPage();
  });
}

void RichTextControl::ApplyPage() {
  TXTextControl->SetPageWidth(viewMode_ == kPageView ? PrintedArea(page_).width : 0);
  UpdateBars();
}

bool RichTextControl::GridLines() const {
  return TXTextControl->GridLines();
}

void RichTextControl::SetGridLines(bool shown) {
  SetProperty("GridLines", [&] { TXTextControl->SetGridLines(shown); });
}

void RichTextControl::SetLocked(bool locked) {
  SetProperty("Locked", [&] {
    isLocked_ = locked;
    TXTextControl->SetEditable(!locked);
    UpdateBars();
  });
}

void RichTextControl::SetStatueBarVisible(bool visible) {
  SetProperty("StatueBarVisible", [&] {
    isStatusBarVisible_ = visible;
    UserControl_Resize();
  });
}

void RichTextControl::SetRulerBarVisible(bool visible) {
  SetProperty("RulerBarVisible", [&] {
    isRulerVisible_ = visible;
    UserControl_Resize();
  });
}

long RichTextControl::SelStart() const {
  return TXTextControl->SelectionStart();
}

void RichTextControl::SetSelStart(long place) {
  Run("SelStart", [&] { TXTextControl->SelectText(place, 0); });
}

long RichTextControl::Sellength() const {
  return TXTextControl->SelectionLength();
}

void RichTextControl::SetSellength(long length) {
  Run("Sellength", [&] { TXTextControl->SelectText(TXTextControl->SelectionStart(), length); });
}

}  // namespace mindloft
