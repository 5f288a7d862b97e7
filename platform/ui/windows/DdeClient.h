#pragma once

#include <string>

#include "platform/ui/InstanceTransport.h"

namespace mindloft::platform {

/// Executes a text at a DDE service: one link, one execute. It waits for whatever the other program does,
/// also without end, so it belongs on a thread that can be left behind.
SendResult ExecuteByDde(const std::string& service, const std::string& topic, const std::string& text);

}  // namespace mindloft::platform
