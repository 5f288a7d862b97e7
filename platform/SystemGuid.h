#pragma once

#include <functional>
#include <string>

namespace mindloft::platform {

/// 16 bytes of a new GUID, in the order in which Windows keeps one in memory; empty when the system gives
/// none.
std::string SystemGuidBytes();

/// Lets NewGuidBytes() answer what the test's function answers, until it goes.
class FakeGuidSource {
 public:
  explicit FakeGuidSource(std::function<std::string()> source);
  ~FakeGuidSource();
  FakeGuidSource(const FakeGuidSource&) = delete;
  FakeGuidSource& operator=(const FakeGuidSource&) = delete;
};

}  // namespace mindloft::platform
