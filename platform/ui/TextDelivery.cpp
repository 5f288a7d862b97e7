#include "platform/ui/TextDelivery.h"

#include <wx/app.h>

#include "platform/Unicode.h"
#include "platform/ui/SingleInstance.h"

namespace mindloft::platform {

TextDelivery::TextDelivery(std::function<void(const std::string&)> onText)
    : onText_(std::make_shared<std::function<void(const std::string&)>>(std::move(onText))) {}

void TextDelivery::Post(std::string text) noexcept {
  try {
    if (!wxTheApp || text.size() > SingleInstance::LongestText || !IsUtf8(text)) return;
    wxTheApp->CallAfter([target = std::weak_ptr(onText_), text = std::move(text)]() noexcept {
      try {
        if (auto onText = target.lock()) (*onText)(text);
      } catch (...) {
        // There is nobody to tell: the toolkit ends the program on an exception here.
      }
    });
  } catch (...) {
    // Out of memory; the sender's instance has ended or will, and this one must go on.
  }
}

}  // namespace mindloft::platform
