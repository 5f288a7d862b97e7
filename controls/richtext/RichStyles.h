#pragma once

#include <wx/richtext/richtextctrl.h>

#include <vector>

namespace mindloft {

inline constexpr const char* kNormalStyle = "Normal";

/// A paragraph style that every document knows. Documents keep its name, which is the same in all languages;
/// the user reads the text of its number.
struct RichStyle {
  const char* name;
  int text;
  double size;  ///< of the base font's
  bool bold;
  bool italic;
  int before;  ///< tenths of a millimetre, as the next two
  int after;
  int indent;
};

const std::vector<RichStyle>& RichStyles();
/// The language's text for a style's name; of a foreign style the name itself.
wxString StyleText(const wxString& name);
/// What the style makes of a text of that base format; Normal for a name that is not known.
wxRichTextAttr StyleFormat(const wxString& name, const wxRichTextAttr& base);

}  // namespace mindloft
