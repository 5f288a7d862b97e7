#include "platform/Printers.h"

#include <cups/cups.h>

#include <memory>
#include <utility>

#include "platform/linux/CupsPapers.h"

namespace mindloft::platform {
namespace {

using Connection = std::unique_ptr<http_t, decltype(&httpClose)>;
using Destination = std::unique_ptr<cups_dest_t, void (*)(cups_dest_t*)>;
using DestinationInfo = std::unique_ptr<cups_dinfo_t, decltype(&cupsFreeDestInfo)>;

/// To the user's print server; null when it does not answer in time.
Connection Connect() {
  constexpr int ConnectMilliseconds = 2000;
  constexpr double AnswerSeconds = 4;
  // Without it the library asks on the terminal for a password.
  cupsSetPasswordCB2(
      [](const char*, http_t*, const char*, const char*, void*) -> const char* { return nullptr; }, nullptr);
  Connection server(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                 ConnectMilliseconds, nullptr),
                    &httpClose);
  if (server)
    httpSetTimeout(
        server.get(), AnswerSeconds, [](http_t*, void*) { return 0; }, nullptr);
  return server;
}

void FreeDestination(cups_dest_t* destination) {
  cupsFreeDests(1, destination);
}

/// "printer", or "printer/instance" with settings of its own.
std::string NameOf(const cups_dest_t& destination) {
  std::string name = destination.name;
  if (destination.instance) name += std::string("/") + destination.instance;
  return name;
}

Destination FindDestination(http_t* server, const std::string& name) {
  const auto slash = name.find('/');
  const std::string instance = slash == std::string::npos ? std::string() : name.substr(slash + 1);
  return {
      cupsGetNamedDest(server, name.substr(0, slash).c_str(), instance.empty() ? nullptr : instance.c_str()),
      &FreeDestination};
}

class SystemPrinters : public Printers {
 public:
  std::vector<InstalledPrinter> Installed() override {
    const Connection server = Connect();
    if (!server) return {};
    cups_dest_t* destinations = nullptr;
    const int count = cupsGetDests2(server.get(), &destinations);
    std::vector<InstalledPrinter> printers;
    for (int index = 0; index < count; ++index) {
      const cups_dest_t& destination = destinations[index];
      const char* port = cupsGetOption("device-uri", destination.num_options, destination.options);
      printers.push_back({NameOf(destination), port ? port : "", destination.is_default != 0});
    }
    cupsFreeDests(count, destinations);
    return printers;
  }

  PrinterPapers Papers(const InstalledPrinter& printer) override {
    const Connection server = Connect();
    if (!server) return {};
    const Destination destination = FindDestination(server.get(), printer.name);
    if (!destination) return {};
    const DestinationInfo info(cupsCopyDestInfo(server.get(), destination.get()), &cupsFreeDestInfo);
    if (!info) return {};
    return ReadCupsPapers(server.get(), destination.get(), info.get());
  }
};

}  // namespace

std::shared_ptr<Printers> MakeSystemPrinters() {
  return std::make_shared<SystemPrinters>();
}

}  // namespace mindloft::platform
