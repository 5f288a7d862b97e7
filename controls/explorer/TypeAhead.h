#pragma once

#include <wx/event.h>
#include <wx/string.h>
#include <wx/timer.h>

namespace mindloft {

/// The text that a user types to jump to a row. It is forgotten after a pause.
class TypeAhead : public wxEvtHandler {
 public:
  /// Milliseconds without a key that end the text; about the pause that the desktops' own lists allow.
  static constexpr int kPause = 1000;

  TypeAhead();

  bool Active() const { return !text_.empty(); }
  const wxString& Text() const { return text_; }
  void Append(wxUniChar character);
  /// Takes the last character back.
  void Backspace();
  void Reset();
  /// Whether the text is one character again and again: that steps through the rows that begin with it.
  bool IsRepetition() const;

 private:
  wxTimer timer_;
  wxString text_;
};

}  // namespace mindloft
