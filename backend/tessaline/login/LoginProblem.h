#pragma once

#include <wx/string.h>

#include "backend/errors/Error.h"

namespace mindloft {

/// A failure as a form shows it beside its fields: a numbered text, and for a tool tip what the log says.
struct LoginProblem {
  wxString text;
  wxString details;

  /// `systemFailureText` is the number of the text for a failure of the system; its parameter is the error's
  /// number.
  static LoginProblem Of(const Error& error, int systemFailureText);
};

}  // namespace mindloft
