#include "platform/EmbeddedFile.h"

#include <map>
#include <string>

namespace mindloft::platform {
namespace {

std::map<std::string, std::string_view, std::less<>>& Files() {
  static std::map<std::string, std::string_view, std::less<>> files;
  return files;
}

}  // namespace

EmbeddedFileEntry::EmbeddedFileEntry(const char* name, const unsigned char* data, std::size_t size) {
  Files()[name] = std::string_view(reinterpret_cast<const char*>(data), size);
}

std::string_view EmbeddedFile(std::string_view name) {
  auto found = Files().find(name);
  return found == Files().end() ? std::string_view() : found->second;
}

}  // namespace mindloft::platform
