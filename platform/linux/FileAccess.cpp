#include "platform/FileAccess.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "backend/errors/Error.h"
#include "platform/linux/Descriptor.h"

namespace mindloft::platform {
namespace {

[[noreturn]] void Fail(const char* what, const std::filesystem::path& file) {
  int failure = errno;
  bool isFull = failure == ENOSPC || failure == EDQUOT || failure == EFBIG;
  throw Error(isFull ? ErrorNumber::DiskFull : ErrorNumber::PathAccess,
              std::string(what) + ";" + file.string() + ";" + std::strerror(failure), {file.string()});
}

/// Removes a file that did not become what it was made for.
class Draft {
 public:
  explicit Draft(std::string name) : name_(std::move(name)) {}
  ~Draft() {
    if (!name_.empty()) unlink(name_.c_str());
  }
  Draft(const Draft&) = delete;
  Draft& operator=(const Draft&) = delete;
  void Keep() { name_.clear(); }

 private:
  std::string name_;
};

}  // namespace

std::optional<std::string> ReadWholeFile(const std::filesystem::path& file) {
  Descriptor descriptor(open(file.c_str(), O_RDONLY | O_CLOEXEC));
  if (!descriptor) {
    if (errno == ENOENT || errno == ENOTDIR) return {};
    Fail("opening", file);
  }
  std::string content;
  char buffer[65536];
  for (;;) {
    auto count = read(descriptor.Get(), buffer, sizeof buffer);
    if (count == 0) return content;
    if (count > 0) {
      content.append(buffer, static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      Fail("reading", file);
    }
  }
}

void ReplaceWholeFile(const std::filesystem::path& file, std::string_view content) {
  // A link stays a link: the file that it leads to is replaced.
  std::error_code none;
  auto target =
      std::filesystem::is_symlink(file, none) ? std::filesystem::weakly_canonical(file, none) : file;
  if (none) target = file;
  std::string name = target.string() + ".XXXXXX";
  Descriptor descriptor(mkostemp(name.data(), O_CLOEXEC));
  if (!descriptor) Fail("writing", target);
  Draft draft(name);
  while (!content.empty()) {
    auto count = write(descriptor.Get(), content.data(), content.size());
    if (count >= 0) {
      content.remove_prefix(static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      Fail("writing", target);
    }
  }
  // Without it a crash could leave an empty file under the name.
  if (fsync(descriptor.Get()) != 0) Fail("writing", target);
  if (rename(name.c_str(), target.c_str()) != 0) Fail("replacing", target);
  draft.Keep();
}

struct FileLock::Handle {
  Descriptor descriptor;
};

FileLock::FileLock(const std::filesystem::path& file) : handle_(nullptr) {
  Descriptor descriptor(open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
  if (!descriptor) Fail("opening", file);
  while (flock(descriptor.Get(), LOCK_EX) != 0) {
    if (errno != EINTR) Fail("locking", file);
  }
  handle_ = new Handle{std::move(descriptor)};
}

FileLock::~FileLock() {
  delete handle_;
}

}  // namespace mindloft::platform
