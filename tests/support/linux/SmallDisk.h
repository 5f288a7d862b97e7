#pragma once

#include <sys/resource.h>

#include <cstdint>

namespace mindloft::test {

/// While it lives no file of this process can grow beyond a size: a write behind it fails, having written
/// what fits, as it does on a full disk.
class SmallDisk {
 public:
  explicit SmallDisk(std::uint64_t largestFile);
  ~SmallDisk();
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int);
};

}  // namespace mindloft::test
