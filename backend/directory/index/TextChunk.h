#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "backend/directory/index/FoldedUser.h"

namespace mindloft {

/// The stored form of the folded texts of kUsers consecutive identifiers: for each its end as a little-endian
/// 32-bit number, then the texts, each followed by a byte that no UTF-8 holds, so that nothing found reaches
/// over the end of a text. An identifier without a user has no bytes.
class TextChunk {
 public:
  static constexpr std::size_t kUsers = 256;
  static constexpr char kEndOfText = '\xFF';

  /// A view on stored bytes, empty bytes being a chunk without users; DirectoryDamaged when they cannot be
  /// one.
  explicit TextChunk(std::string_view stored);

  /// All texts, one user behind the other.
  std::string_view Texts() const { return texts_; }
  /// Where the texts of the user in this slot end within Texts.
  std::size_t EndOf(std::size_t slot) const;
  std::optional<FoldedUser> UserAt(std::size_t slot) const;
  /// One key of the user in this slot; nothing when there is no user.
  std::optional<std::string_view> KeyAt(std::size_t slot, Order order) const;
  /// The stored form with another user, or none, in this slot.
  std::string With(std::size_t slot, const FoldedUser* user) const;
  /// The stored form with those users only whose slots `stays` is true for; adds the others to `gone`.
  std::string Only(const std::function<bool(std::size_t slot)>& stays, std::size_t& gone) const;
  bool Empty() const { return texts_.empty(); }

  /// One key in one user's bytes; DirectoryDamaged when they do not hold it.
  static std::string_view KeyIn(std::string_view line, Order order);
  /// One user's bytes.
  static void AppendUser(std::string& texts, const FoldedUser& user);

 private:
  std::string_view LineOf(std::size_t slot) const;

  std::string_view ends_;
  std::string_view texts_;
};

/// Writes a chunk from its first user to its last.
class TextChunkWriter {
 public:
  TextChunkWriter() { Clear(); }
  void Clear();
  /// Slots ascend; `line` is what AppendUser made.
  void Add(std::size_t slot, std::string_view line);
  /// The stored form.
  std::string Finish();

 private:
  void EndSlotsUpTo(std::size_t slot);
  std::string ends_, texts_;
};

}  // namespace mindloft
