#include "controls/texts/TextUndo.h"

#include <wx/crt.h>

namespace mindloft {
namespace {

/// Text units that one box keeps at most; a change that is larger by itself is kept all the same.
constexpr std::size_t kMostUnits = 4 * 1024 * 1024;

std::size_t UnitsOf(const TextChange& change) {
  return change.removed.length() + change.inserted.length();
}

}  // namespace

void TextUndo::Clear() {
  changes_.clear();
  done_ = 0;
  units_ = 0;
  isClosed_ = true;
}

bool TextUndo::ContinuesLast(const TextChange& change) const {
  if (isClosed_ || done_ == 0 || !change.removed.empty()) return false;
  const TextChange& last = changes_[done_ - 1];
  const bool isTyping = change.inserted.length() == 1 && change.at == last.at + last.inserted.length();
  // A word at a time.
  return isTyping && !(wxIsspace(change.inserted[0]) && !last.inserted.empty());
}

void TextUndo::Record(const TextChange& change) {
  if (change.IsNone()) return;
  while (changes_.size() > done_) {
    units_ -= UnitsOf(changes_.back());
    changes_.pop_back();
  }
  if (ContinuesLast(change)) {
    changes_.back().inserted += change.inserted;
  } else {
    changes_.push_back(change);
    ++done_;
  }
  units_ += UnitsOf(change);
  isClosed_ = change.inserted.length() != 1;
  ForgetOldest();
}

void TextUndo::ForgetOldest() {
  while (units_ > kMostUnits && changes_.size() > 1) {
    units_ -= UnitsOf(changes_.front());
    changes_.erase(changes_.begin());
    --done_;
  }
}

std::optional<TextChange> TextUndo::Undo() {
  if (!CanUndo()) return std::nullopt;
  isClosed_ = true;
  return changes_[--done_];
}

std::optional<TextChange> TextUndo::Redo() {
  if (!CanRedo()) return std::nullopt;
  isClosed_ = true;
  return changes_[done_++];
}

}  // namespace mindloft
