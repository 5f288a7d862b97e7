#pragma once

#include <wx/string.h>

#include <cstddef>

namespace mindloft {

class RichEditor;

/// How a text is searched for.
struct FindOptions {
  bool matchCase = false;
  bool wholeWord = false;
  bool backwards = false;
};

/// Where `wanted` is found in `text` at or after `start` (backwards: ending at or before it); npos when it is
/// not. Case is compared character by character.
std::size_t FindIn(const wxString& text, const wxString& wanted, std::size_t start,
                   const FindOptions& options);

/// Selects the next place of the text after the selection (backwards: before it), also in cells, beginning
/// anew at the other end; false, and the selection stays, when there is none.
bool FindNext(RichEditor& editor, const wxString& wanted, const FindOptions& options);

/// Replaces the selection when it is what is searched for, then goes to the next; false when there is none.
bool ReplaceNext(RichEditor& editor, const wxString& wanted, const wxString& replacement,
                 const FindOptions& options);

/// Replaces every place, as one step to undo; returns how many there were.
int ReplaceAll(RichEditor& editor, const wxString& wanted, const wxString& replacement,
               const FindOptions& options);

}  // namespace mindloft
