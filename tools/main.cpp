#include <iostream>

#include "platform/Arguments.h"
#include "platform/Terminal.h"
#include "tools/DirectoryTool.h"

int main(int argc, char** argv) {
  const mindloft::platform::Utf8Console utf8;
  mindloft::Console console{std::cin, std::cout, std::cerr, mindloft::platform::AskOnTerminal};
  return mindloft::RunDirectoryTool(mindloft::platform::ProgramArguments(argc, argv), console);
}
