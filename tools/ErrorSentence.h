#pragma once

#include <string>

#include "backend/errors/Error.h"

namespace mindloft {

/// What went wrong with the file, as a sentence for the terminal.
std::string ErrorSentence(const Error& error, const std::string& file);

}  // namespace mindloft
