#include "backend/tessaline/login/WrappedLabel.h"

#include <wx/stattext.h>

namespace mindloft {
namespace {

/// How many characters of the text fill the first line.
std::size_t LineLength(const wxStaticText& label, const wxString& text, int width) {
  std::size_t breakAfter = wxString::npos;
  for (std::size_t length = 1; length <= text.length(); ++length) {
    const wxUniChar last = text[length - 1];
    if (last == '\n') return length;
    if (length > 1 && last != ' ' && label.GetTextExtent(text.Left(length)).x > width) {
      return breakAfter == wxString::npos ? length - 1 : breakAfter;
    }
    if (last == ' ' || last == '/' || last == '\\') breakAfter = length;
  }
  return text.length();
}

}  // namespace

void SetWrappedLabel(wxStaticText& label, const wxString& text, int width) {
  wxString rest = text, lines;
  while (!rest.empty()) {
    const auto length = LineLength(label, rest, width);
    wxString line = rest.Left(length);
    rest.erase(0, length);
    lines << line.Trim();
    if (!rest.empty()) lines << '\n';
  }
  label.SetLabelText(lines);
}

}  // namespace mindloft
