#include "controls/texts/EditBox.h"

#include <algorithm>

#include "platform/ui/TextBox.h"

namespace mindloft {

EditBox::EditBox(wxWindow* parent, const wxString& name, long style, const wxWindow& control,
                 TextBoxEvents& events, const char* className)
    : control_(control), events_(events), className_(className) {
  Create(parent, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, style | wxBORDER_NONE,
         wxDefaultValidator, name);
  // No limit is left to the desktop: its own counts halves of characters, and may refuse a text as a whole.
  platform::LiftTextLimit(*this);
  rules_.manyLines = IsMultiLine();
  BindKeys();
  BindMouse();
  BindText();
}

void EditBox::PutText(const wxString& text) {
  wxString shown = Holdable(text);
  if (rules_.maxLength > 0) shown = FirstCharacters(shown, static_cast<std::size_t>(rules_.maxLength));
  undo_.Clear();
  if (shown == text_) return;
  ChangeValue(shown);
  text_ = GetValue();
  TellChange();
}

void EditBox::TakeOver(EditBox& other) {
  ShowText(other.text_, 0);
  undo_ = std::move(other.undo_);
  other.undo_.Clear();
  SelectText(other.SelectionStart(), other.SelectionLength());
  const bool hadFocus = other.HasFocus();
  Show(other.IsShown());
  other.Hide();
  if (hadFocus) SetFocus();
}

std::size_t EditBox::CharactersBesideSelection() const {
  return CountCharacters(text_) - CountCharacters(GetStringSelection());
}

void EditBox::PutSelection(const wxString& text) {
  const wxString permitted = Permitted(Holdable(text), CharactersBesideSelection(), rules_);
  // A text of which nothing is let in replaces nothing.
  if (permitted.empty() && !text.empty()) return;
  // One change, also where the desktop tells of the removal and of the insertion.
  isPutting_ = true;
  WriteText(permitted);
  isPutting_ = false;
  OnText();
}

void EditBox::SetMaxCharacters(int characters) {
  rules_.maxLength = characters;
  if (characters > 0 && CountCharacters(text_) > static_cast<std::size_t>(characters)) PutText(text_);
}

void EditBox::SetPasswordCharacter(char32_t character) {
  isSecret_ = character != 0;
  if (isSecret_) undo_.Clear();
  platform::SetPasswordCharacter(*this, character);
}

void EditBox::ShowText(const wxString& text, std::size_t caret) {
  ChangeValue(text);
  text_ = GetValue();
  SetInsertionPoint(ToBox(caret));
}

// Every way in ends here: what the rules do not let in is taken out again.
void EditBox::OnText() {
  if (isPutting_) return;
  const wxString now = GetValue();
  TextChange change = DifferenceOf(text_, now);
  if (change.IsNone()) return;
  const std::size_t others = CountCharacters(text_) - CountCharacters(change.removed);
  const wxString permitted =
      change.inserted.empty() ? wxString() : Permitted(change.inserted, others, rules_);
  if (permitted == change.inserted) {
    text_ = now;
  } else {
    if (permitted.empty()) change.removed.clear();
    change.inserted = permitted;
    ShowText(change.Applied(text_), change.at + permitted.length());
    if (change.IsNone()) return;
  }
  if (!isSecret_) undo_.Record(change);
  TellChange();
}

void EditBox::Undo() {
  if (!CanUndo()) return;
  const TextChange change = *undo_.Undo();
  ShowText(change.Reverted(text_), change.at + change.removed.length());
  TellChange();
}

void EditBox::Redo() {
  if (!CanRedo()) return;
  const TextChange change = *undo_.Redo();
  ShowText(change.Applied(text_), change.at + change.inserted.length());
  TellChange();
}

long EditBox::ToBox(std::size_t inText) const {
  const int perBreak = IsMultiLine() ? platform::LineBreakPositions() : 1;
  if (perBreak == 1) return static_cast<long>(inText);
  const wxString before = text_.Left(inText);
  return static_cast<long>(before.length()) +
         static_cast<long>(std::count(before.begin(), before.end(), '\n')) * (perBreak - 1);
}

long EditBox::FromBox(long inBox) const {
  const int perBreak = IsMultiLine() ? platform::LineBreakPositions() : 1;
  if (perBreak == 1) return inBox;
  long inText = 0;
  for (const wxUniChar each : text_) {
    inBox -= each == '\n' ? perBreak : 1;
    if (inBox < 0) break;
    ++inText;
  }
  return inText;
}

long EditBox::SelectionStart() const {
  long from = 0, to = 0;
  GetSelection(&from, &to);
  return FromBox(from);
}

long EditBox::SelectionLength() const {
  long from = 0, to = 0;
  GetSelection(&from, &to);
  return FromBox(to) - FromBox(from);
}

void EditBox::SelectText(long start, long length) {
  const long end = static_cast<long>(text_.length());
  const long from = std::clamp(start, 0L, end);
  const long to = from + std::clamp(length, 0L, end - from);
  SetSelection(ToBox(static_cast<std::size_t>(from)), ToBox(static_cast<std::size_t>(to)));
}

}  // namespace mindloft
