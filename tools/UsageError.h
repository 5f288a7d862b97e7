#pragma once

#include <source_location>
#include <string>

#include "backend/errors/Error.h"

namespace mindloft {

/// A command line that cannot be understood; the description is a sentence for the terminal.
class UsageError : public Error {
 public:
  explicit UsageError(std::string sentence, std::source_location origin = std::source_location::current())
      : Error(ErrorNumber::TypeMismatch, std::move(sentence), {}, origin) {}
};

}  // namespace mindloft
