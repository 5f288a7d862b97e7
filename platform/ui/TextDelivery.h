#pragma once

#include <functional>
#include <memory>
#include <string>

namespace mindloft::platform {

/// Carries texts from a callback of the system into the main loop. Nothing is called after it is gone.
class TextDelivery {
 public:
  explicit TextDelivery(std::function<void(const std::string&)> onText);
  /// Broken UTF-8 and texts above the limit are dropped. Never throws.
  void Post(std::string text) noexcept;

 private:
  std::shared_ptr<std::function<void(const std::string&)>> onText_;
};

}  // namespace mindloft::platform
