#include "backend/tessaline/LogFile.h"

#include <spdlog/sinks/rotating_file_sink.h>

#include <chrono>

#include "platform/Clock.h"

namespace mindloft::Tessaline {
namespace {

constexpr std::size_t largestSize = 1u << 20;
constexpr std::size_t oldFiles = 3;

std::string Escaped(const std::string& line) {
  static constexpr char digits[] = "0123456789ABCDEF";
  std::string escaped;
  escaped.reserve(line.size());
  for (char c : line) {
    auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte != 0x7F) {
      escaped += c;
    } else {
      escaped += {'\\', 'x', digits[byte >> 4], digits[byte & 15]};
    }
  }
  return escaped;
}

}  // namespace

struct LogFile::Impl {
  explicit Impl(const std::filesystem::path& file) : sink(file.native(), largestSize, oldFiles) {
    sink.set_pattern("%Y-%m-%dT%H:%M:%S.%e%z [%P] %v");
  }
  spdlog::sinks::rotating_file_sink_st sink;
};

LogFile::LogFile(const std::filesystem::path& file) {
  std::filesystem::create_directories(file.parent_path());
  impl_ = std::make_unique<Impl>(file);
}

LogFile::~LogFile() = default;

void LogFile::Write(const std::string& line) {
  std::string escaped = Escaped(line);
  spdlog::log_clock::time_point now{std::chrono::duration_cast<spdlog::log_clock::duration>(
      std::chrono::milliseconds(platform::NowMilliseconds()))};
  impl_->sink.log(spdlog::details::log_msg(now, {}, "", spdlog::level::info, escaped));
  impl_->sink.flush();
}

}  // namespace mindloft::Tessaline
