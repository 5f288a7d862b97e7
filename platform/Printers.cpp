#include "platform/Printers.h"

#include <utility>

namespace mindloft::platform {
namespace {

std::shared_ptr<Printers>& Fake() {
  static std::shared_ptr<Printers> fake;
  return fake;
}

}  // namespace

std::shared_ptr<Printers> GetPrinters() {
  return Fake() ? Fake() : MakeSystemPrinters();
}

FakePrinters::FakePrinters(std::shared_ptr<Printers> printers) {
  Fake() = std::move(printers);
}
FakePrinters::~FakePrinters() {
  Fake() = nullptr;
}

}  // namespace mindloft::platform
