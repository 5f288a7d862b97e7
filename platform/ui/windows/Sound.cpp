#include "platform/ui/Sound.h"

#include <windows.h>
#include <mmsystem.h>

namespace mindloft::platform {

bool PlayInSystem(const std::filesystem::path& file) {
  return PlaySoundW(file.c_str(), nullptr, SND_FILENAME | SND_NODEFAULT | SND_ASYNC) != 0;
}

}  // namespace mindloft::platform
