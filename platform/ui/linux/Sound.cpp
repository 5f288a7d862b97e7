#include "platform/ui/Sound.h"

#include <wx/log.h>
#include <wx/sound.h>

#include "platform/Paths.h"

namespace mindloft::platform {

bool PlayInSystem(const std::filesystem::path& file) {
  std::error_code failure;
  if (!std::filesystem::is_regular_file(file, failure)) return false;
  // A file of another kind is silent here, not a message.
  const wxLogNull silent;
  return wxSound::Play(wxString::FromUTF8(PathToUtf8(file)), wxSOUND_ASYNC);
}

}  // namespace mindloft::platform
