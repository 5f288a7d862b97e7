#pragma once

#include <windows.h>

#include <utility>

namespace mindloft::platform {

/// Owns a handle of the system; false when there is none.
class Handle {
 public:
  explicit Handle(HANDLE handle = nullptr) : handle_(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
  ~Handle() {
    if (handle_) CloseHandle(handle_);
  }
  Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  Handle& operator=(Handle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  explicit operator bool() const { return handle_ != nullptr; }
  HANDLE Get() const { return handle_; }

 private:
  HANDLE handle_;
};

}  // namespace mindloft::platform
