#include "platform/Printers.h"

#include <memory>
#include <utility>

#include "platform/linux/CupsLibrary.h"
#include "platform/linux/CupsPapers.h"

namespace mindloft::platform {
namespace {

template <typename Thing>
using Owned = std::unique_ptr<Thing, void (*)(Thing*)>;

/// To the user's print server; null when it does not answer in time.
Owned<http_t> Connect(const CupsLibrary& cups) {
  constexpr int ConnectMilliseconds = 2000;
  constexpr double AnswerSeconds = 4;
  // Without it the library asks on the terminal for a password.
  cups.setPasswordCallback(
      [](const char*, http_t*, const char*, const char*, void*) -> const char* { return nullptr; }, nullptr);
  Owned<http_t> server(cups.connect(cups.server(), cups.port(), nullptr, AF_UNSPEC, cups.encryption(), 1,
                                    ConnectMilliseconds, nullptr),
                       cups.close);
  if (server)
    cups.setTimeout(
        server.get(), AnswerSeconds, [](http_t*, void*) { return 0; }, nullptr);
  return server;
}

/// "printer", or "printer/instance" with settings of its own.
std::string NameOf(const cups_dest_t& destination) {
  std::string name = destination.name;
  if (destination.instance) name += std::string("/") + destination.instance;
  return name;
}

Owned<cups_dest_t> FindDestination(const CupsLibrary& cups, http_t* server, const std::string& name) {
  const auto slash = name.find('/');
  const std::string instance = slash == std::string::npos ? std::string() : name.substr(slash + 1);
  return {cups.getDestination(server, name.substr(0, slash).c_str(),
                              instance.empty() ? nullptr : instance.c_str()),
          [](cups_dest_t* destination) { CupsLibrary::Get()->freeDestinations(1, destination); }};
}

class SystemPrinters : public Printers {
 public:
  std::vector<InstalledPrinter> Installed() override {
    const CupsLibrary* cups = CupsLibrary::Get();
    if (!cups) return {};
    const auto server = Connect(*cups);
    if (!server) return {};
    cups_dest_t* destinations = nullptr;
    const int count = cups->getDestinations(server.get(), &destinations);
    std::vector<InstalledPrinter> printers;
    for (int index = 0; index < count; ++index) {
      const cups_dest_t& destination = destinations[index];
      const char* port = cups->getOption("device-uri", destination.num_options, destination.options);
      printers.push_back({NameOf(destination), port ? port : "", destination.is_default != 0});
    }
    cups->freeDestinations(count, destinations);
    return printers;
  }

  PrinterPapers Papers(const InstalledPrinter& printer) override {
    const CupsLibrary* cups = CupsLibrary::Get();
    if (!cups) return {};
    const auto server = Connect(*cups);
    if (!server) return {};
    const auto destination = FindDestination(*cups, server.get(), printer.name);
    if (!destination) return {};
    const Owned<cups_dinfo_t> info(cups->copyInfo(server.get(), destination.get()), cups->freeInfo);
    if (!info) return {};
    return ReadCupsPapers(*cups, server.get(), destination.get(), info.get());
  }
};

}  // namespace

std::shared_ptr<Printers> MakeSystemPrinters() {
  return std::make_shared<SystemPrinters>();
}

}  // namespace mindloft::platform
