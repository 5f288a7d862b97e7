#pragma once

#include "controls/texts/FramedTextBox.h"

namespace mindloft {

/// A text box of one line: with a filter for digits, a masking character and a limit of its length, framed as
/// the desktop frames its own.
class UseTextBox : public BagControl<UseTextBox, FramedTextBox> {
 public:
  UseTextBox() : BagControl("UseTextBox") {}  ///< for XRC; Create follows
  explicit UseTextBox(wxWindow* parent, const wxString& name = "UseTextBox");
  void Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size, long style,
              const wxString& name);

  static const PropertyTable<UseTextBox>& Properties();

  /// Its first character is shown for each of the text, which can then not be copied; empty: none.
  wxString PassWordChar() const { return passWordChar_; }
  void SetPassWordChar(const wxString& character);
  bool FontUnderline() const;
  void SetFontUnderline(bool underlined);
  wxString FontName() const;
  void SetFontName(const wxString& name);
  bool FontBold() const;
  void SetFontBold(bool bold);
  bool FontItalic() const;
  void SetFontItalic(bool italic);

  /// After the filter, with 0 for a key that it refused. Set to 0, the character is not typed.
  std::function<void(int& keyAscii)> KeyPress;

 private:
  wxString passWordChar_;
};

}  // namespace mindloft
