#include "backend/directory/file/HeaderCheck.h"

#include <cstdint>
#include <cstring>
#include <fstream>

#include "backend/directory/file/Schema.h"

namespace mindloft {
namespace {

// Places in the header of a SQLite file (its file format document, "The Database Header"); numbers are
// big-endian.
constexpr std::size_t kHeaderSize = 100;
constexpr std::size_t kPageSizeAt = 16;
constexpr std::size_t kChangeCounterAt = 24;
constexpr std::size_t kPageCountAt = 28;
constexpr std::size_t kUserVersionAt = 60;
constexpr std::size_t kApplicationIdAt = 68;
constexpr std::size_t kVersionValidForAt = 92;
constexpr char kMagic[] = "SQLite format 3";

class Header {
 public:
  explicit Header(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw Error(ErrorNumber::PathAccess, "the file cannot be read");
    stream.read(bytes_, kHeaderSize);
    complete_ = stream.gcount() == static_cast<std::streamsize>(kHeaderSize);
  }
  bool IsSqlite() const { return complete_ && std::memcmp(bytes_, kMagic, sizeof kMagic) == 0; }
  std::uint32_t Number(std::size_t at, std::size_t size = 4) const {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < size; ++i) number = number << 8 | static_cast<unsigned char>(bytes_[at + i]);
    return number;
  }
  /// The size that the file must have; 0 when the header does not tell.
  std::uint64_t FileSize() const {
    if (Number(kChangeCounterAt) != Number(kVersionValidForAt)) return 0;
    // 65536 does not fit into two bytes.
    std::uint64_t pageSize = Number(kPageSizeAt, 2) == 1 ? 65536 : Number(kPageSizeAt, 2);
    return pageSize * Number(kPageCountAt);
  }

 private:
  char bytes_[kHeaderSize] = {};
  bool complete_ = false;
};

/// Whether a write-ahead log lies beside the file: after a crash it holds what the file still lacks.
bool HasLog(const std::filesystem::path& file) {
  std::filesystem::path log = file;
  log += "-wal";
  std::error_code missing;
  auto size = std::filesystem::file_size(log, missing);
  return !missing && size > 0;
}

}  // namespace

void CheckHeader(const std::filesystem::path& file) {
  std::error_code code;
  auto status = std::filesystem::status(file, code);
  if (status.type() == std::filesystem::file_type::not_found) throw Error(ErrorNumber::DirectoryNotFound);
  if (status.type() != std::filesystem::file_type::regular) {
    throw Error(code ? ErrorNumber::PathAccess : ErrorNumber::DirectoryForeign, "no regular file");
  }
  Header header(file);
  if (!header.IsSqlite()) throw Error(ErrorNumber::DirectoryForeign, "no SQLite file");
  if (header.Number(kApplicationIdAt) != kApplicationId) {
    throw Error(ErrorNumber::DirectoryForeign, "an SQLite file of another application");
  }
  auto schema = static_cast<std::int32_t>(header.Number(kUserVersionAt));
  if (schema > CurrentSchema()) {
    throw Error(ErrorNumber::DirectoryNewer, "schema " + std::to_string(schema));
  }
  if (schema < 1) throw Error(ErrorNumber::DirectoryDamaged, "no schema version");
  if (HasLog(file)) return;
  auto size = std::filesystem::file_size(file, code);
  if (code) throw Error(ErrorNumber::PathAccess, code.message());
  if (size < header.FileSize()) throw Error(ErrorNumber::DirectoryDamaged, "shorter than its header says");
}

}  // namespace mindloft
