#include "tests/support/linux/SmallDisk.h"

#include <signal.h>

#include <stdexcept>

namespace mindloft::test {

// The system also sends a signal, which would end the process.
SmallDisk::SmallDisk(std::uint64_t largestFile) : handler_(signal(SIGXFSZ, SIG_IGN)) {
  getrlimit(RLIMIT_FSIZE, &before_);
  rlimit small = before_;
  small.rlim_cur = largestFile;
  if (setrlimit(RLIMIT_FSIZE, &small) != 0) throw std::runtime_error("setrlimit");
}

SmallDisk::~SmallDisk() {
  setrlimit(RLIMIT_FSIZE, &before_);
  signal(SIGXFSZ, handler_);
}

}  // namespace mindloft::test
