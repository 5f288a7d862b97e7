#pragma once

#include <optional>

namespace mindloft::platform {

/// Whether the Shift key is held down at this moment; works before there is any window.
bool IsShiftDown();

/// Whether letters come out as capitals because Caps Lock is on.
bool IsCapsLockOn();

/// Holds or releases the Shift key for a test, until it goes.
class FakeShiftKey {
 public:
  explicit FakeShiftKey(bool isDown);
  ~FakeShiftKey();
  FakeShiftKey(const FakeShiftKey&) = delete;
  FakeShiftKey& operator=(const FakeShiftKey&) = delete;
};

/// Turns Caps Lock on or off for a test, until it goes.
class FakeCapsLock {
 public:
  explicit FakeCapsLock(bool isOn);
  ~FakeCapsLock();
  FakeCapsLock(const FakeCapsLock&) = delete;
  FakeCapsLock& operator=(const FakeCapsLock&) = delete;
};

}  // namespace mindloft::platform
