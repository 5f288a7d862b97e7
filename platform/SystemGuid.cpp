#include "platform/SystemGuid.h"

#include "platform/Random.h"

namespace mindloft::platform {
namespace {

std::function<std::string()> fakeSource;

}  // namespace

std::string NewGuidBytes() {
  return fakeSource ? fakeSource() : SystemGuidBytes();
}

FakeGuidSource::FakeGuidSource(std::function<std::string()> source) {
  fakeSource = std::move(source);
}
FakeGuidSource::~FakeGuidSource() {
  fakeSource = nullptr;
}

}  // namespace mindloft::platform
