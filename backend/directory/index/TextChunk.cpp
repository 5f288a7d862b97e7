#include "backend/directory/index/TextChunk.h"

#include "backend/directory/index/Packed.h"

namespace mindloft {
namespace {

constexpr std::size_t kEndsSize = TextChunk::kUsers * kPackedSize;

[[noreturn]] void ThrowDamaged() {
  throw Error(ErrorNumber::DirectoryDamaged, "a block of search texts is damaged");
}

}  // namespace

TextChunk::TextChunk(std::string_view stored) {
  if (stored.empty()) return;
  if (stored.size() < kEndsSize) ThrowDamaged();
  ends_ = stored.substr(0, kEndsSize);
  texts_ = stored.substr(kEndsSize);
  if (EndOf(kUsers - 1) != texts_.size()) ThrowDamaged();
}

std::size_t TextChunk::EndOf(std::size_t slot) const {
  return ends_.empty() ? 0 : PackedNumber(ends_, slot);
}

std::string_view TextChunk::LineOf(std::size_t slot) const {
  std::size_t begin = slot == 0 ? 0 : EndOf(slot - 1);
  std::size_t end = EndOf(slot);
  if (begin > end || end > texts_.size()) ThrowDamaged();
  return texts_.substr(begin, end - begin);
}

std::string_view TextChunk::KeyIn(std::string_view line, Order order) {
  for (std::size_t place = 0;; ++place) {
    auto end = line.find(kEndOfText);
    if (end == std::string_view::npos) ThrowDamaged();
    if (place == PlaceOf(order)) return line.substr(0, end);
    line.remove_prefix(end + 1);
  }
}

std::optional<std::string_view> TextChunk::KeyAt(std::size_t slot, Order order) const {
  std::string_view line = LineOf(slot);
  if (line.empty()) return std::nullopt;
  return KeyIn(line, order);
}

std::optional<FoldedUser> TextChunk::UserAt(std::size_t slot) const {
  std::string_view line = LineOf(slot);
  if (line.empty()) return std::nullopt;
  FoldedUser user;
  for (Order order : kOrders) user.keys[PlaceOf(order)] = KeyIn(line, order);
  return user;
}

std::string TextChunk::With(std::size_t slot, const FoldedUser* user) const {
  std::string changed;
  if (user) AppendUser(changed, *user);
  TextChunkWriter writer;
  for (std::size_t i = 0; i < kUsers; ++i) writer.Add(i, i == slot ? changed : LineOf(i));
  return writer.Finish();
}

std::string TextChunk::Only(const std::function<bool(std::size_t slot)>& stays, std::size_t& gone) const {
  TextChunkWriter writer;
  for (std::size_t slot = 0; slot < kUsers; ++slot) {
    const std::string_view line = LineOf(slot);
    if (stays(slot))
      writer.Add(slot, line);
    else if (!line.empty())
      ++gone;
  }
  return writer.Finish();
}

void TextChunk::AppendUser(std::string& texts, const FoldedUser& user) {
  for (const auto& key : user.keys) {
    texts += key;
    texts += kEndOfText;
  }
}

void TextChunkWriter::Clear() {
  ends_.clear();
  texts_.clear();
}

void TextChunkWriter::EndSlotsUpTo(std::size_t slot) {
  while (ends_.size() < slot * kPackedSize) AppendPacked(ends_, static_cast<std::uint32_t>(texts_.size()));
}

void TextChunkWriter::Add(std::size_t slot, std::string_view line) {
  EndSlotsUpTo(slot);
  texts_ += line;
}

std::string TextChunkWriter::Finish() {
  EndSlotsUpTo(TextChunk::kUsers);
  std::string stored = ends_ + texts_;
  Clear();
  return stored;
}

}  // namespace mindloft
