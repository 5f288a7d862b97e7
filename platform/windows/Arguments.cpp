#include "platform/Arguments.h"

#include <windows.h>
#include <shellapi.h>

#include <memory>

#include "platform/windows/Wide.h"

namespace mindloft::platform {

std::vector<std::string> ProgramArguments(int /*argc*/, char** /*argv*/) {
  // main's own arguments have gone through the system's code page.
  int count = 0;
  const std::unique_ptr<LPWSTR, decltype(&LocalFree)> wide(CommandLineToArgvW(GetCommandLineW(), &count),
                                                           &LocalFree);
  std::vector<std::string> arguments;
  for (int i = 1; wide && i < count; ++i) arguments.push_back(Narrow(wide.get()[i]));
  return arguments;
}

}  // namespace mindloft::platform
