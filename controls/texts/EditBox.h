#pragma once

#include <wx/textctrl.h>

#include <functional>

#include "controls/texts/TextBoxEvents.h"
#include "controls/texts/TextChange.h"
#include "controls/texts/TextUndo.h"

namespace mindloft {

/// The editing box inside the text controls: a text box of the desktop that keeps to the rules of its control
/// whatever way a text comes in (keys, input methods, pasting, dragging), counts whole characters, takes back
/// and repeats changes, and passes its events on.
class EditBox : public wxTextCtrl {
 public:
  /// `control` is the one that the box is the inside of; it outlives the box, and so do its `events`.
  /// `className` is its name in error reports.
  EditBox(wxWindow* parent, const wxString& name, long style, const wxWindow& control, TextBoxEvents& events,
          const char* className);

  /// Gets every typed character after the rules; may change it, or cancel it by 0. May be empty.
  std::function<void(int& keyAscii)> keyPress;
  /// Takes the place of DblClick when it returns true. May be empty.
  std::function<bool()> doubleClick;

  void SetIsNumber(bool isNumber) { rules_.isNumber = isNumber; }
  /// 0: no limit. A longer text is cut.
  void SetMaxCharacters(int characters);
  /// 0 shows the text itself.
  void SetPasswordCharacter(char32_t character);
  void SetTabStop(bool isTabStop) { isTabStop_ = isTabStop; }

  /// Puts the program's text, cut to the limit; the user cannot take this back. Tells Change when the text is
  /// another one.
  void PutText(const wxString& text);
  /// Takes the text, the selection, the focus and the place on the screen of another box, with what its user
  /// can take back; tells nothing.
  void TakeOver(EditBox& other);
  /// Replaces the selection, as if it had been typed. What the rules do not let in is left out.
  void PutSelection(const wxString& text);

  // Places in the text count as wxString does, whatever the desktop's box does with line breaks.
  long SelectionStart() const;
  long SelectionLength() const;
  /// Places past the end become the end.
  void SelectText(long start, long length);

  bool AcceptsFocusFromKeyboard() const override {
    return isTabStop_ && wxTextCtrl::AcceptsFocusFromKeyboard();
  }
  bool CanUndo() const override { return IsEditable() && undo_.CanUndo(); }
  bool CanRedo() const override { return IsEditable() && undo_.CanRedo(); }
  void Undo() override;
  void Redo() override;

 private:
  using MouseHandler = std::function<void(int button, int shift, int x, int y)>;

  void BindKeys();
  void BindMouse();
  void BindText();
  /// Runs an event procedure; an error in it is shown.
  template <typename Procedure>
  void Run(const char* event, Procedure procedure) const;
  bool DoEditingKey(const wxKeyEvent& event);
  void OnKeyDown(wxKeyEvent& event);
  void OnChar(wxKeyEvent& event);
  bool IsFull() const;
  void OnMouse(const MouseHandler& handler, const wxMouseEvent& event) const;
  void OnLeftUp(const wxMouseEvent& event);
  void OnText();
  void PasteText();
  void ShowText(const wxString& text, std::size_t caret);
  void TellChange() const;
  std::size_t CharactersBesideSelection() const;
  long ToBox(std::size_t inText) const;
  long FromBox(long inBox) const;

  const wxWindow& control_;
  TextBoxEvents& events_;
  const char* className_;
  TextRules rules_;
  TextUndo undo_;
  wxString text_;  ///< as it was told last
  bool isSecret_ = false;
  bool isTabStop_ = true;
  bool isPutting_ = false;
  bool isPressed_ = false;  ///< the left button went down inside
};

}  // namespace mindloft
