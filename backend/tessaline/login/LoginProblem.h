#pragma once

#include <wx/string.h>

#include "backend/errors/Error.h"

namespace mindloft {

/// A failure as a form shows it beside its fields: a numbered text, and for a tool tip what the log says.
struct LoginProblem {
  wxString text;
  wxString details;

  static LoginProblem Of(const Error& error);
};

}  // namespace mindloft
