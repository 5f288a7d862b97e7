#include "platform/Arguments.h"

namespace mindloft::platform {

std::vector<std::string> ProgramArguments(int argc, char** argv) {
  if (argc < 1) return {};
  return {argv + 1, argv + argc};
}

}  // namespace mindloft::platform
