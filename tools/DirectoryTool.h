#pragma once

#include <string>
#include <vector>

#include "tools/Console.h"

namespace mindloft {

/// Runs the program `mindloft-directory` with the arguments after its name. Returns the exit status: 0, 1
/// when the command failed or a check found something, 2 for a command line that cannot be understood.
int RunDirectoryTool(const std::vector<std::string>& arguments, Console& console);

}  // namespace mindloft
