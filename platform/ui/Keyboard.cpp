#include "platform/ui/Keyboard.h"

#include <wx/utils.h>

namespace mindloft::platform {
namespace {

std::optional<bool> fakeShift, fakeCapsLock;

}  // namespace

bool IsShiftDown() {
  // The toolkit asks GetKeyState on Windows and the display's key map elsewhere.
  return fakeShift ? *fakeShift : wxGetKeyState(WXK_SHIFT);
}

bool IsCapsLockOn() {
  return fakeCapsLock ? *fakeCapsLock : wxGetKeyState(WXK_CAPITAL);
}

FakeShiftKey::FakeShiftKey(bool isDown) {
  fakeShift = isDown;
}
FakeShiftKey::~FakeShiftKey() {
  fakeShift.reset();
}

FakeCapsLock::FakeCapsLock(bool isOn) {
  fakeCapsLock = isOn;
}
FakeCapsLock::~FakeCapsLock() {
  fakeCapsLock.reset();
}

}  // namespace mindloft::platform
