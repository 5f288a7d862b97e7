#pragma once

#include <functional>
#include <memory>
#include <string>

namespace mindloft::platform {

enum class SendResult {
  Taken,       ///< the first instance has the whole text
  NotTaken,    ///< it did not say so in time, or refused it
  NobodyThere  ///< no instance serves (yet)
};

/// How the instances of one user in one session find and reach each other on one kind of system.
class InstanceTransport {
 public:
  virtual ~InstanceTransport() = default;

  /// Whether an instance made under the same name was there before this one.
  virtual bool IsAnotherRunning() const = 0;
  /// One try to hand a text to the first instance, within about three seconds.
  virtual SendResult Send(const std::string& text) = 0;
  /// From here on hands texts to `onText` in the main loop; false when that cannot be.
  virtual bool Serve(std::function<void(const std::string&)> onText) = 0;

  /// The system's own; takes its part in deciding who is the first at once.
  static std::unique_ptr<InstanceTransport> Create(const std::string& application, const std::string& topic);
};

}  // namespace mindloft::platform
