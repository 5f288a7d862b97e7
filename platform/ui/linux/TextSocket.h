#pragma once

#include <filesystem>
#include <functional>
#include <list>
#include <memory>
#include <string>

#include "platform/linux/Descriptor.h"
#include "platform/ui/InstanceTransport.h"
#include "platform/ui/TextDelivery.h"

class wxEventLoopSource;

namespace mindloft::platform {

/// Hands one text to the server; waits at most about two seconds.
SendResult SendText(const std::filesystem::path& socket, const std::string& text);

/// Takes texts at a socket of this user's own, in the main loop. A text is all that a client sends until it
/// closes its side; one byte goes back when it is whole.
class TextServer {
 public:
  /// Null when the socket could not be made. A file of that name is replaced.
  static std::unique_ptr<TextServer> Create(const std::filesystem::path& socket,
                                            std::function<void(const std::string&)> onText);
  ~TextServer();
  TextServer(const TextServer&) = delete;
  TextServer& operator=(const TextServer&) = delete;

 private:
  class Watch;
  struct Client;

  TextServer(std::filesystem::path socket, Descriptor listener,
             std::function<void(const std::string&)> onText);
  void Accept();
  void Read(Client& client);
  void Drop(Client& client);

  std::filesystem::path socket_;
  Descriptor listener_;
  TextDelivery delivery_;
  std::unique_ptr<Watch> watch_;
  std::list<std::unique_ptr<Client>> clients_;
};

}  // namespace mindloft::platform
