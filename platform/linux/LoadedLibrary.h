#pragma once

#include <dlfcn.h>

namespace mindloft::platform {

/// A library that is loaded when it is needed, and stays: calls in it may outlive whoever made them, and some
/// register types that cannot go. What fails is told by dlerror.
class LoadedLibrary {
 public:
  explicit LoadedLibrary(const char* file) : handle_(dlopen(file, RTLD_NOW | RTLD_NODELETE)) {}
  explicit operator bool() const { return handle_ != nullptr; }

  /// False, and null, when the library has no such function.
  template <typename Function>
  bool Find(Function*& function, const char* name) const {
    function = reinterpret_cast<Function*>(dlsym(handle_, name));
    return function != nullptr;
  }

 private:
  void* handle_;
};

}  // namespace mindloft::platform
