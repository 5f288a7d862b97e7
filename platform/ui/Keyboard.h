#pragma once

#include <optional>

namespace mindloft::platform {

/// Whether the Shift key is held down at this moment; works before there is any window.
bool IsShiftDown();

/// Holds or releases the Shift key for a test, until it goes.
class FakeShiftKey {
 public:
  explicit FakeShiftKey(bool isDown);
  ~FakeShiftKey();
  FakeShiftKey(const FakeShiftKey&) = delete;
  FakeShiftKey& operator=(const FakeShiftKey&) = delete;
};

}  // namespace mindloft::platform
