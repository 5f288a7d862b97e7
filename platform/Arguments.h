#pragma once

#include <string>
#include <vector>

namespace mindloft::platform {

/// The arguments of the process's command line after the program's name, in UTF-8. The parameters are those
/// of main.
std::vector<std::string> ProgramArguments(int argc, char** argv);

}  // namespace mindloft::platform
