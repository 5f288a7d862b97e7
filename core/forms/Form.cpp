#include "core/forms/Form.h"

#include <wx/button.h>
#include <wx/sizer.h>

#include "backend/errors/Error.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/ErrorHandling.h"
#include "core/forms/FormResource.h"
#include "core/forms/Images.h"

namespace mindloft {
namespace {

void (*helpAction)() = nullptr;

/// Of the lists and the colours' buttons, those that are not the system's.
bool IsDrawnByToolkit(const wxWindow& window) {
  for (const char* name : {"wxGenericListCtrl", "wxGenericColourButton"}) {
    const wxClassInfo* drawn = wxClassInfo::FindClass(name);
    if (drawn && window.IsKindOf(drawn)) return true;
  }
  return false;
}

}  // namespace

void RegisterFormHandler(wxXmlResourceHandler* handler) {
  FormResource::Get().AddHandler(handler);
}

void LoadDialogForm(wxDialog& dialog, wxWindow* parent, const wxString& name) {
  FormResource::Get().Load(&dialog, parent, name, "wxDialog");
  ApplyLayoutDirection(dialog);
}

void LoadFrameForm(wxFrame& frame, wxWindow* parent, const wxString& name) {
  FormResource::Get().Load(&frame, parent, name, "wxFrame");
  ApplyLayoutDirection(frame);
}

void ApplyLayoutDirection(wxWindow& window) {
  auto wanted = GetResource().IsRightToLeft() && !IsDrawnByToolkit(window) ? wxLayout_RightToLeft
                                                                           : wxLayout_LeftToRight;
  auto present = window.GetLayoutDirection();
  // A window without a direction of its own is left to right; setting that again would only cost time.
  bool differs = present == wxLayout_Default ? wanted == wxLayout_RightToLeft : present != wanted;
  if (differs) window.SetLayoutDirection(wanted);
  for (wxWindow* child : window.GetChildren()) {
    if (!child->IsTopLevel()) ApplyLayoutDirection(*child);
  }
}

void ThrowMissingControl(const wxWindow& form, const char* name, const char* type) {
  throw Error(ErrorNumber::Unexpected,
              "form " + ToUtf8(form.GetName()) + " has no control " + name + " of type " + type);
}

void SetHelpAction(void (*action)()) {
  helpAction = action;
}

void BindHelpKey(wxWindow& form) {
  form.Bind(wxEVT_CHAR_HOOK, [](wxKeyEvent& event) {
    bool help = event.GetKeyCode() == WXK_F1 && event.GetModifiers() == wxMOD_NONE && helpAction;
    if (!help) {
      event.Skip();
      return;
    }
    Guarded("modPublic", "ShowHelp", [] { helpAction(); });
  });
}

FormDialog::FormDialog(wxWindow* parent, const wxString& formName) {
  LoadDialogForm(*this, parent, formName);
  SetIcons(WindowIcons());
  BindHelpKey(*this);
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    GrowToContents();
  });
}

bool FormDialog::Layout() {
  if (!GetSizer()) return wxDialog::Layout();
  wxSize room = GetClientSize();
  room.IncTo(GetSizer()->GetMinSize());
  GetSizer()->SetDimension(wxPoint(), room);
  return true;
}

// When a window is shown for the first time, the window manager may take the room of its borders from what
// was fitted to the contents.
void FormDialog::GrowToContents() {
  if (!GetSizer() || !IsShown()) return;
  const wxSize needed = GetSizer()->GetMinSize();
  wxSize room = GetClientSize();
  room.IncTo(needed);
  // Asked for once: the screen may be too small.
  if (room == GetClientSize() || grownTo_ == needed) return;
  grownTo_ = needed;
  SetClientSize(room);
}

void FormDialog::LoadInfoOnForm() try {
  GetResource().LoadInfoOnForm(*this);
  ApplyLayoutDirection(*this);
  FitToContents();
  // What a form that is open shows has moved, in a new reading direction to the other side.
  if (IsShown()) Refresh();
} catch (...) {
  mindloft::Raise("FormDialog", "LoadInfoOnForm");
}

void FormDialog::FitToContents() {
  if (!GetSizer()) return;
  wxSize present = GetSize();
  SetMinSize(wxDefaultSize);
  wxSize needed = GetSizer()->ComputeFittingWindowSize(this);
  SetMinSize(needed);
  // A form that the user has made larger stays so.
  present.IncTo(needed);
  SetSize(IsShown() ? present : needed);
  Layout();
}

int FormDialog::ShowModal() {
  int result = wxDialog::ShowModal();
  if (result == GetAffirmativeId()) return wxID_OK;
  return result == GetEscapeId() ? wxID_CANCEL : result;
}

void FormDialog::SetButtons(const char* defaultButton, const char* escapeButton) {
  auto* accept = Find<wxButton>(defaultButton);
  accept->SetDefault();
  SetAffirmativeId(accept->GetId());
  SetEscapeId(Find<wxButton>(escapeButton)->GetId());
}

}  // namespace mindloft
