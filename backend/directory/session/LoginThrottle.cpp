#include "backend/directory/session/LoginThrottle.h"

#include <algorithm>

#include "backend/errors/Error.h"
#include "platform/Clock.h"

namespace mindloft {
namespace {

constexpr int kFreeFailures = 3;
constexpr std::int64_t kGreatestDelay = 30'000;

}  // namespace

LoginThrottle& LoginThrottle::Of(const std::filesystem::path& file) {
  static std::map<std::filesystem::path, LoginThrottle> all;
  std::error_code ignored;
  auto name = std::filesystem::weakly_canonical(file, ignored);
  return all[ignored ? file : name];
}

void LoginThrottle::Failures::Add(std::int64_t now) {
  if (++inARow < kFreeFailures) return;
  int doublings = std::min(inARow - kFreeFailures, 16);
  nextAttempt = now + std::min(kGreatestDelay, std::int64_t{1000} << doublings);
}

void LoginThrottle::Require(const std::string& nameKey) const {
  std::int64_t next = overall_.nextAttempt;
  if (auto found = byName_.find(nameKey); found != byName_.end()) {
    next = std::max(next, found->second.nextAttempt);
  }
  std::int64_t left = next - platform::MonotonicMilliseconds();
  if (left > 0) {
    throw Error(ErrorNumber::LoginDelayed, "repeated failures", {std::to_string((left + 999) / 1000)});
  }
}

void LoginThrottle::Failed(const std::string& nameKey) {
  std::int64_t now = platform::MonotonicMilliseconds();
  overall_.Add(now);
  byName_[nameKey].Add(now);
}

void LoginThrottle::Succeeded(const std::string& nameKey) {
  overall_ = {};
  byName_.erase(nameKey);
}

}  // namespace mindloft
