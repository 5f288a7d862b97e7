#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/buttons/HyperlinkAddress.h"
#include "controls/buttons/MyButton.h"
#include "controls/buttons/RaiseEvent.h"
#include "platform/Shell.h"
#include "platform/ui/Sound.h"

namespace mindloft {
namespace {

constexpr int kLinkCannotBeOpened = 61560;
constexpr const char* kMail = "mailto:";

}  // namespace

bool MyButton::RaiseClick() {
  if (!RaiseEvent(*this, "MyButton", "Click", Click)) return false;
  const wxWeakRef<wxEvtHandler> self(this);
  Guarded("MyButton", "GoToURL", [this] { GoToURL(); });
  return self.get() != nullptr;
}

bool MyButton::PlayASound(const wxString& file) try {
  return platform::PlaySoundFile(ToUtf8(file));
} catch (...) {
  ReportOnly("MyButton", "PlayASound");
  return false;
}

void MyButton::GoToURL() try {
  if (url_.empty()) return;
  const bool opened = url_.StartsWith(kMail) ? Navigate(wxGetTopLevelParent(this), url_)
                                             : platform::OpenUrl(ToUtf8(HyperlinkAddress(url_)));
  if (!opened) GetMessenger().ShowMessage(kLinkCannotBeOpened, {url_});
} catch (...) {
  mindloft::Raise("MyButton", "GoToURL");
}

bool MyButton::Navigate(wxWindow* form, const wxString& address) try {
  static_cast<void>(form);  // the shell's own windows come to the front by themselves
  return platform::OpenUrl(ToUtf8(address));
} catch (...) {
  mindloft::Raise("MyButton", "Navigate");
}

MyButton::Rgb MyButton::ConvertRGB(ControlColour colour) {
  const std::uint32_t value = colour.Value();
  const Rgb rgb{static_cast<int>(value % 256), static_cast<int>(value / 256 % 256),
                static_cast<int>(value / 256 / 256 % 256)};
  rgbText_.Printf("RGB(%d, %d, %d)", rgb.red, rgb.green, rgb.blue);
  return rgb;
}

wxString MyButton::version() const {
  return MINDLOFT_VERSION;
}

platform::WindowHandle MyButton::hWnd() const {
  return platform::HandleOf(this);
}

}  // namespace mindloft
