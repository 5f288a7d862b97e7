#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace mindloft {

/// Looks for one text in many others. Bytes are compared as they are.
class TextFinder {
 public:
  /// `text` must not be empty.
  explicit TextFinder(std::string text) : text_(std::move(text)) {}

  /// The first place at or after `from`; npos when there is none.
  std::size_t Find(std::string_view in, std::size_t from) const;

 private:
  bool IsAt(const char* place) const;
  std::string text_;
};

}  // namespace mindloft
