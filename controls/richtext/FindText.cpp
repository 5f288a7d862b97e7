#include "controls/richtext/FindText.h"

#include <wx/wxcrt.h>

#include "backend/tessaline/Text.h"
#include "controls/richtext/RichEditor.h"
#include "controls/richtext/TextBlocks.h"
#include "platform/Unicode.h"

namespace mindloft {
namespace {

const std::size_t npos = wxString::npos;

wxString Folded(const wxString& text) {
  return ToWx(platform::UpperCase(ToUtf8(text)));
}

/// Letters are also those that only this folding knows: the system's own knowledge depends on its locale.
bool IsWordCharacter(wxUniChar character) {
  const wxString alone(character);
  return wxIsalnum(character) || character == '_' || Folded(alone) != alone;
}

bool IsWholeWord(const wxString& text, std::size_t start, std::size_t length) {
  const bool before = start > 0 && IsWordCharacter(text[start - 1]);
  const bool after = start + length < text.length() && IsWordCharacter(text[start + length]);
  return !before && !after;
}

/// Whether the selection, as it stands, is a place of what is searched for.
bool IsFoundSelected(RichEditor& editor, const wxString& wanted, FindOptions options) {
  options.backwards = false;
  const wxString selected = editor.GetStringSelection();
  if (!editor.HasSelection() || selected.length() != wanted.length() ||
      FindIn(selected, wanted, 0, options) != 0)
    return false;
  if (!options.wholeWord) return true;
  const auto* paragraph = editor.GetFocusObject()->GetParagraphAtPosition(editor.SelectionStart());
  if (!paragraph) return false;
  const auto start = static_cast<std::size_t>(editor.SelectionStart() - paragraph->GetRange().GetStart());
  return IsWholeWord(TextOfParagraph(*paragraph), start, wanted.length());
}

/// The block and the place in it at which a search begins.
struct Start {
  std::size_t block = 0;
  std::size_t place = 0;
};

Start StartOf(const RichEditor& editor, const std::vector<TextBlock>& blocks, bool backwards) {
  const long caret = backwards ? editor.SelectionStart() : editor.SelectionStart() + editor.SelectionLength();
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    const TextBlock& block = blocks[i];
    const long end = block.start + static_cast<long>(block.text.length());
    if (block.container == editor.GetFocusObject() && caret >= block.start && caret <= end)
      return {i, static_cast<std::size_t>(caret - block.start)};
  }
  return {};
}

void Select(RichEditor& editor, const TextBlock& block, std::size_t place, std::size_t length) {
  if (editor.GetFocusObject() != block.container) editor.SetFocusObject(block.container, false);
  editor.SelectText(block.start + static_cast<long>(place), static_cast<long>(length));
  editor.ShowPosition(editor.SelectionStart());
}

}  // namespace

std::size_t FindIn(const wxString& text, const wxString& wanted, std::size_t start,
                   const FindOptions& options) {
  if (wanted.empty() || wanted.length() > text.length()) return npos;
  const wxString where = options.matchCase ? text : Folded(text);
  const wxString what = options.matchCase ? wanted : Folded(wanted);
  // Folding that changes lengths would move the places.
  if (where.length() != text.length() || what.length() != wanted.length()) {
    FindOptions exact = options;
    exact.matchCase = true;
    return FindIn(text, wanted, start, exact);
  }
  if (options.backwards && start < what.length()) return npos;
  std::size_t at = options.backwards ? where.rfind(what, start - what.length()) : where.find(what, start);
  while (at != npos && options.wholeWord && !IsWholeWord(text, at, what.length())) {
    if (options.backwards && at == 0) return npos;
    at = options.backwards ? where.rfind(what, at - 1) : where.find(what, at + 1);
  }
  return at;
}

bool FindNext(RichEditor& editor, const wxString& wanted, const FindOptions& options) {
  const auto blocks = TextBlocks(editor);
  if (blocks.empty()) return false;
  const Start start = StartOf(editor, blocks, options.backwards);
  // Each block once, and the first one again from its other end.
  for (std::size_t step = 0; step <= blocks.size(); ++step) {
    const std::size_t offset = step % blocks.size();
    const std::size_t index = options.backwards ? (start.block + blocks.size() - offset) % blocks.size()
                                                : (start.block + offset) % blocks.size();
    const wxString& text = blocks[index].text;
    const std::size_t from = step == 0 ? start.place : options.backwards ? text.length() : 0;
    const std::size_t found = FindIn(text, wanted, from, options);
    if (found == npos) continue;
    Select(editor, blocks[index], found, wanted.length());
    return true;
  }
  return false;
}

bool ReplaceNext(RichEditor& editor, const wxString& wanted, const wxString& replacement,
                 const FindOptions& options) {
  if (IsFoundSelected(editor, wanted, options)) {
    const long start = editor.SelectionStart();
    editor.PutSelection(replacement);
    if (options.backwards) editor.SelectText(start, 0);
  }
  return FindNext(editor, wanted, options);
}

int ReplaceAll(RichEditor& editor, const wxString& wanted, const wxString& replacement,
               const FindOptions& options) {
  FindOptions forwards = options;
  forwards.backwards = false;
  int replaced = 0;
  auto* container = editor.GetFocusObject();
  const long caret = editor.SelectionStart();
  editor.Freeze();
  editor.BeginBatchUndo(wxString());
  const auto blocks = TextBlocks(editor);
  // From the end, so that the places before stay what they are.
  for (auto block = blocks.rbegin(); block != blocks.rend(); ++block) {
    std::vector<std::size_t> places;
    for (std::size_t at = FindIn(block->text, wanted, 0, forwards); at != npos;
         at = FindIn(block->text, wanted, at + wanted.length(), forwards))
      places.push_back(at);
    for (auto place = places.rbegin(); place != places.rend(); ++place, ++replaced) {
      if (editor.GetFocusObject() != block->container) editor.SetFocusObject(block->container, false);
      editor.SelectText(block->start + static_cast<long>(*place), static_cast<long>(wanted.length()));
      editor.PutSelection(replacement);
    }
  }
  editor.EndBatchUndo();
  if (editor.GetFocusObject() != container) editor.SetFocusObject(container, false);
  editor.SelectText(caret, 0);
  editor.Thaw();
  return replaced;
}

}  // namespace mindloft
