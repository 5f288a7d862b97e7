#pragma once

#include <functional>
#include <memory>
#include <string>

namespace mindloft::platform {

class InstanceTransport;

/// Keeps one instance per user and session, and hands a text from a second one to the first: over DDE
/// (application "Pellacor", topic "formDDE", execute) on Windows, elsewhere over a private socket in
/// RuntimeFolder(). Another user's instance in the same session is neither found nor answered.
class SingleInstance {
 public:
  /// The longest text in bytes that is handed over; a longer one is refused on both sides.
  static constexpr std::size_t LongestText = 1 << 20;

  /// Of all that are made under a name, exactly one is the first, until it goes.
  explicit SingleInstance(const std::string& application = "Pellacor", const std::string& topic = "formDDE");
  explicit SingleInstance(std::unique_ptr<InstanceTransport> transport);
  ~SingleInstance();
  SingleInstance(const SingleInstance&) = delete;
  SingleInstance& operator=(const SingleInstance&) = delete;

  bool IsAnotherRunning() const;

  /// Hands a text (UTF-8) to the first instance. Returns within some three seconds whatever that one does;
  /// true when it took the text. A busy one may still take it after false was returned.
  bool SendToFirst(const std::string& utf8Text) noexcept;

  /// From here on hands every text that arrives to `onText`, in the main loop, on its own turn; what `onText`
  /// throws is lost. Needs the toolkit's application. False when the service could not be set up.
  bool Serve(std::function<void(const std::string&)> onText);

 private:
  std::unique_ptr<InstanceTransport> transport_;
};

}  // namespace mindloft::platform
