#pragma once

#include <string>

namespace mindloft::platform {

enum class DdeResult { Taken, NotTaken, NobodyThere };

/// Executes a text at a DDE service: one link, one execute. It waits for whatever the other program does,
/// also without end, so it belongs on a thread that can be left behind.
DdeResult ExecuteByDde(const std::string& service, const std::string& topic, const std::string& text);

}  // namespace mindloft::platform
