#pragma once

#include <string_view>
#include <vector>

#include "tools/Arguments.h"
#include "tools/Console.h"

namespace mindloft {

/// One thing that the tool can do with a directory file.
class Command {
 public:
  virtual ~Command() = default;
  virtual std::string_view Name() const = 0;
  /// One line for the list of commands.
  virtual std::string_view Summary() const = 0;
  /// What the help says below the summary; may be empty.
  virtual std::string_view Details() const = 0;
  virtual const std::vector<Option>& Options() const = 0;
  /// Returns the exit status; throws Error for what went wrong.
  virtual int Run(const Arguments& arguments, Console& console) const = 0;
};

}  // namespace mindloft
