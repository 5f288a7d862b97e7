#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "controls/texts/TextChange.h"

namespace mindloft {

/// The changes of a box that its user can take back and make again. What is typed in one go is one change.
class TextUndo {
 public:
  void Clear();
  void Record(const TextChange& change);
  bool CanUndo() const { return done_ > 0; }
  bool CanRedo() const { return done_ < changes_.size(); }
  /// The change to revert; nothing when there is none.
  std::optional<TextChange> Undo();
  /// The change to apply again; nothing when there is none.
  std::optional<TextChange> Redo();

 private:
  bool ContinuesLast(const TextChange& change) const;
  void ForgetOldest();

  std::vector<TextChange> changes_;
  std::size_t done_ = 0;   ///< the changes before it are in the text
  std::size_t units_ = 0;  ///< of all texts that are kept
  bool isClosed_ = true;   ///< what is typed next begins a change of its own
};

}  // namespace mindloft
