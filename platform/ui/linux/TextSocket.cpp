#include "platform/ui/linux/TextSocket.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>
#include <wx/evtloop.h>
#include <wx/evtloopsrc.h>

#include <cerrno>
#include <cstring>

#include "platform/ui/SingleInstance.h"

namespace mindloft::platform {
namespace {

constexpr timeval Patience{1, 0};  // for each of sending and answering
constexpr std::size_t MostClients = 16;
constexpr char Received = '\6';

/// False when the path is too long for a socket.
bool SetAddress(sockaddr_un& address, const std::filesystem::path& socket) {
  address = {};
  address.sun_family = AF_UNIX;
  const auto& name = socket.native();
  if (name.size() >= sizeof address.sun_path) return false;
  std::memcpy(address.sun_path, name.c_str(), name.size() + 1);
  return true;
}

bool IsOwnUser(int descriptor) {
  ucred peer{};
  socklen_t size = sizeof peer;
  return getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == getuid();
}

bool SendAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    auto count = send(descriptor, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (count > 0) {
      bytes.remove_prefix(static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      return false;
    }
  }
  return true;
}

}  // namespace

SendResult SendText(const std::filesystem::path& socket, const std::string& text) {
  sockaddr_un address;
  if (!SetAddress(address, socket)) return SendResult::NotTaken;
  Descriptor client(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  if (!client) return SendResult::NotTaken;
  // Also bounds connect, which waits while the server's queue is full.
  setsockopt(client.Get(), SOL_SOCKET, SO_SNDTIMEO, &Patience, sizeof Patience);
  setsockopt(client.Get(), SOL_SOCKET, SO_RCVTIMEO, &Patience, sizeof Patience);
  if (connect(client.Get(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) {
    return errno == ENOENT || errno == ECONNREFUSED ? SendResult::NobodyThere : SendResult::NotTaken;
  }
  if (!IsOwnUser(client.Get()) || !SendAll(client.Get(), text) || shutdown(client.Get(), SHUT_WR) != 0) {
    return SendResult::NotTaken;
  }
  char answer = 0;
  ssize_t count;
  while ((count = recv(client.Get(), &answer, 1, 0)) < 0 && errno == EINTR) {
  }
  return count == 1 && answer == Received ? SendResult::Taken : SendResult::NotTaken;
}

/// Calls a function when there is something to read.
class TextServer::Watch : public wxEventLoopSourceHandler {
 public:
  Watch(int descriptor, std::function<void()> onReadable)
      : onReadable_(std::move(onReadable)),
        source_(wxEventLoopBase::AddSourceForFD(descriptor, this,
                                                wxEVENT_SOURCE_INPUT | wxEVENT_SOURCE_EXCEPTION)) {}
  explicit operator bool() const { return source_ != nullptr; }
  void Stop() { source_.reset(); }
  void OnReadWaiting() override { onReadable_(); }
  void OnWriteWaiting() override {}
  void OnExceptionWaiting() override { onReadable_(); }

 private:
  std::function<void()> onReadable_;
  std::unique_ptr<wxEventLoopSource> source_;
};

struct TextServer::Client {
  Descriptor descriptor;
  std::string text;
  std::unique_ptr<Watch> watch;
};

std::unique_ptr<TextServer> TextServer::Create(const std::filesystem::path& socket,
                                               std::function<void(const std::string&)> onText) {
  sockaddr_un address;
  if (!SetAddress(address, socket)) return {};
  Descriptor listener(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  if (!listener) return {};
  unlink(socket.c_str());
  if (bind(listener.Get(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) return {};
  if (chmod(socket.c_str(), 0600) != 0 || listen(listener.Get(), static_cast<int>(MostClients)) != 0) {
    unlink(socket.c_str());
    return {};
  }
  std::unique_ptr<TextServer> server(new TextServer(socket, std::move(listener), std::move(onText)));
  if (!*server->watch_) return {};
  return server;
}

TextServer::TextServer(std::filesystem::path socket, Descriptor listener,
                       std::function<void(const std::string&)> onText)
    : socket_(std::move(socket)),
      listener_(std::move(listener)),
      delivery_(std::move(onText)),
      watch_(std::make_unique<Watch>(listener_.Get(), [this] { Accept(); })) {}

TextServer::~TextServer() {
  unlink(socket_.c_str());
}

void TextServer::Accept() {
  Descriptor descriptor(accept4(listener_.Get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
  clients_.remove_if([](const auto& client) { return !client->descriptor; });
  if (!descriptor || !IsOwnUser(descriptor.Get())) return;
  // One that sends nothing must not keep others out.
  if (clients_.size() == MostClients) clients_.pop_front();
  auto& client = *clients_.emplace_back(std::make_unique<Client>());
  client.descriptor = std::move(descriptor);
  client.watch = std::make_unique<Watch>(client.descriptor.Get(), [this, &client] { Read(client); });
  if (!*client.watch) Drop(client);
}

void TextServer::Read(Client& client) {
  char buffer[65536];
  for (;;) {
    auto count = recv(client.descriptor.Get(), buffer, sizeof buffer, 0);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) return;
    if (count == 0) {
      delivery_.Post(std::move(client.text));
      SendAll(client.descriptor.Get(), std::string_view(&Received, 1));
    }
    if (count <= 0 || client.text.size() + static_cast<std::size_t>(count) > SingleInstance::LongestText) {
      Drop(client);
      return;
    }
    client.text.append(buffer, static_cast<std::size_t>(count));
  }
}

void TextServer::Drop(Client& client) {
  // Its handler is running just now, and the toolkit may call it once more: the object goes with the next
  // client.
  client.watch->Stop();
  client.descriptor = Descriptor();
}

}  // namespace mindloft::platform
