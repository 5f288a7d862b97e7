#pragma once

#include <cstddef>
#include <string_view>

namespace mindloft::platform {

/// A file that was built into the program. Entries are static objects of generated sources.
class EmbeddedFileEntry {
 public:
  EmbeddedFileEntry(const char* name, const unsigned char* data, std::size_t size);
};

/// The content of the file built in under `name` ("forms/frmLogin.xrc"); valid for the life of the process.
/// An unknown name gives an empty view.
std::string_view EmbeddedFile(std::string_view name);

}  // namespace mindloft::platform
