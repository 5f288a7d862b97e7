#include "controls/texts/UserText.h"

#include <wx/weakref.h>

#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/LabelBefore.h"
#include "controls/texts/BoxFont.h"
#include "controls/texts/UserEditor.h"
#include "core/ErrorHandling.h"
#include "platform/ui/CommonControls.h"
#include "platform/ui/TextBox.h"

namespace mindloft {
namespace {

constexpr const char* kName = "UserText";
/// The directory's name for a user that is not there any more.
constexpr const char* kUnknownUser = "Unknown User";

}  // namespace

const PropertyTable<UserText>& UserText::Properties() {
  using C = UserText;
  static const PropertyTable<C> table{
      KeptProperty("DisplayUser", &C::DisplayUser, &C::SetDisplayUser, false),
      KeptProperty("Locked", &C::Locked, &C::SetLocked, true),
      KeptProperty("HasFrame", &C::HasFrame, &C::SetHasFrame, false),
      KeptProperty("Frame2000", &C::Frame2000, &C::SetFrame2000, false),
      KeptProperty("FrameColor", &C::FrameColor, &C::SetFrameColor, kButtonShadowColour),
      KeptProperty("Text", &C::Text, &C::SetText, wxString()),
      KeptProperty("Enabled", &C::Enabled, &C::SetEnabled, true),
      KeptProperty("FontUnderline", &C::FontUnderline, &C::SetFontUnderline, false),
      KeptProperty("Alignment", &C::Alignment, &C::SetAlignment, std::int16_t{0}),
      KeptProperty("BackColor", &C::BackColor, &C::SetBackColor, kButtonFaceColour),
  };
  return table;
}

template <typename Procedure>
void UserText::SetProperty(const char* property, Procedure procedure) {
  try {
    procedure();
    PropertyChanged();
  } catch (...) {
    mindloft::Raise(kName, property);
  }
}

UserText::UserText(wxWindow* parent, const wxString& name) {
  Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, name);
}

void UserText::Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size,
                      long style, const wxString& name) {
  platform::UseSystemControls();
  wxPanel::Create(parent, id, position, size, style | wxTAB_TRAVERSAL | wxFULL_REPAINT_ON_RESIZE, name);
  MakeBox(0);
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    UserControl_Resize();
  });
  Bind(wxEVT_PAINT, [this](wxPaintEvent&) { UserControl_Paint(); });
  Bind(wxEVT_SYS_COLOUR_CHANGED, [this](wxSysColourChangedEvent& event) {
    event.Skip();
    Guarded(kName, "ApplyColours", [this] { ApplyColours(); });
  });
  ReadProperties({});
  SetInitialSize(size);
  UserControl_Resize();
}

void UserText::MakeBox(long style) {
  EditBox* former = txtUser;
  // A box that is made inside a disabled control would not be disabled.
  const bool isEnabled = IsThisEnabled();
  Enable();
  txtUser = new EditBox(this, "txtUser", style, *this, *this, kName);
  BindBox();
  Enable(isEnabled);
  if (!former) return;
  // Not every desktop turns a box that is there to the other side.
  txtUser->SetFont(former->GetFont());
  platform::ApplyUnderline(*txtUser);
  txtUser->SetHint(former->GetHint());
  txtUser->SetEditable(former->IsEditable());
  txtUser->TakeOver(*former);
  former->SetName(wxString());
  // A handler of the former may be what runs now.
  former->CallAfter([former] { former->Destroy(); });
}

void UserText::BindBox() {
  txtUser->doubleClick = [this] { return OpenUser(); };
  txtUser->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
    // What the mouse does by a double click; Space types nothing into a locked box.
    const bool opens = event.GetKeyCode() == WXK_SPACE && event.GetModifiers() == wxMOD_NONE && Locked();
    bool isOpened = false;
    if (opens && displayUser_) Guarded(kName, "txtUser_KeyDown", [&] { isOpened = OpenUser(); });
    event.Skip(!isOpened);
  });
  platform::ShowGround(*txtUser);
  platform::SetAccessibleName(*txtUser, [this] {
    const wxString label = LabelBefore(*this);
    return label.empty() ? GetLabel() : label;
  });
}

wxWindowList UserText::GetCompositeWindowParts() const {
  wxWindowList parts;
  if (txtUser) parts.push_back(txtUser);
  return parts;
}

void UserText::SetUser(std::shared_ptr<Corvane::User> user) try {
  if (!user) {
    EmptyUser();
    return;
  }
  user_ = std::move(user);
  txtUser->PutText(ToWx(user_->Name()));
} catch (...) {
  mindloft::Raise(kName, "User");
}

void UserText::EmptyUser() try {
  user_.reset();
  txtUser->PutText(wxString());
} catch (...) {
  mindloft::Raise(kName, "EmptyUser");
}

bool UserText::OpenUser() {
  if (!displayUser_) return false;
  const auto user = user_;
  if (!user || user->Name() == kUnknownUser) return true;
  const wxWeakRef<UserText> self(this);
  EditUser(user);
  // The form may have been closed meanwhile, or show another user.
  if (self && self->user_ == user) self->txtUser->PutText(ToWx(user->Name()));
  return true;
}

void UserText::SetDisplayUser(bool displayUser) {
  SetProperty("DisplayUser", [&] { displayUser_ = displayUser; });
}

void UserText::SetLocked(bool locked) {
  SetProperty("Locked", [&] {
    txtUser->SetEditable(!locked);
    ApplyColours();
  });
}

void UserText::SetText(const wxString& text) {
  SetProperty("Text", [&] { txtUser->PutText(text); });
}

void UserText::SetEnabled(bool enabled) {
  SetProperty("Enabled", [&] { Enable(enabled); });
}

void UserText::LoadInfoOnControl() try { GetResource().LoadInfoOnControl(*this); } catch (...) {
  mindloft::Raise(kName, "LoadInfoOnControl");
}

void UserText::SetLabel(const wxString& caption) {
  wxPanel::SetLabel(caption);
  txtUser->SetHint(caption);
}

bool UserText::FontUnderline() const {
  return txtUser->GetFont().GetUnderlined();
}

void UserText::SetFontUnderline(bool underlined) {
  SetProperty("FontUnderline",
              [&] { ChangeFont(*txtUser, [&](wxFont& font) { font.SetUnderlined(underlined); }); });
}

wxString UserText::FontName() const {
  return txtUser->GetFont().GetFaceName();
}

void UserText::SetFontName(const wxString& name) try {
  ChangeFont(*txtUser, [&](wxFont& font) { font.SetFaceName(name); });
} catch (...) {
  mindloft::Raise(kName, "FontName");
}

bool UserText::FontBold() const {
  return IsBold(*txtUser);
}

void UserText::SetFontBold(bool bold) try { SetBold(*txtUser, bold); } catch (...) {
  mindloft::Raise(kName, "FontBold");
}

double UserText::FontSize() const {
  return txtUser->GetFont().GetFractionalPointSize();
}

void UserText::SetFontSize(double points) try {
  ChangeFont(*txtUser, [&](wxFont& font) { font.SetFractionalPointSize(points); });
} catch (...) {
  mindloft::Raise(kName, "FontSize");
}

bool UserText::FontItalic() const {
  return IsItalic(*txtUser);
}

void UserText::SetFontItalic(bool italic) try { SetItalic(*txtUser, italic); } catch (...) {
  mindloft::Raise(kName, "FontItalic");
}

}  // namespace mindloft
