#include "platform/ui/Keyboard.h"

#include <wx/utils.h>

namespace mindloft::platform {
namespace {

std::optional<bool> fakeShift;

}  // namespace

bool IsShiftDown() {
  // The toolkit asks GetKeyState on Windows and the display's key map elsewhere.
  return fakeShift ? *fakeShift : wxGetKeyState(WXK_SHIFT);
}

FakeShiftKey::FakeShiftKey(bool isDown) {
  fakeShift = isDown;
}
FakeShiftKey::~FakeShiftKey() {
  fakeShift.reset();
}

}  // namespace mindloft::platform
