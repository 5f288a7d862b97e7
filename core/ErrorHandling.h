#pragma once

#include <string>
#include <utility>

#include "backend/errors/Error.h"

namespace mindloft {

// The trap of every procedure: a function-try-block that ends in one of these. Both belong in a catch block
// only.

/// For a procedure that is no event handler: reports the error with this procedure and throws it on. Inside a
/// window class it is called as mindloft::Raise: the toolkit's windows have a Raise of their own.
[[noreturn]] void Raise(const char* objectName, const char* procedureName);

/// For an event handler: reports the error with this procedure and shows it, once. Never throws.
void ShowError(const char* objectName, const char* procedureName) noexcept;

/// For a procedure that ends quietly on a failure: reports only. Never throws.
void ReportOnly(const char* objectName, const char* procedureName) noexcept;

/// Runs a callback in which an exception would end the program (CallAfter, IPC, data models) and shows its
/// error.
template <typename Action>
void Guarded(const char* objectName, const char* procedureName, Action&& action) noexcept {
  try {
    std::forward<Action>(action)();
  } catch (...) {
    ShowError(objectName, procedureName);
  }
}

/// Whether the number's text names an error of the system rather than of the application.
bool IsSystemError(const std::string& numberText);

}  // namespace mindloft
