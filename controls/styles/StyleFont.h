#pragma once

#include <wx/richtext/richtextbuffer.h>
#include <wx/string.h>

#include <optional>
#include <vector>

namespace mindloft {

namespace Corvane {
struct StyleFormat;
}

/// The face to draw with for the font that a style names: itself when the computer has it, what the desktop
/// takes for "sans-serif", "serif" and "monospace", the windows' own for an empty one. Nothing for a font
/// that is not installed.
std::optional<wxString> FaceOfStyleFont(const wxString& fontName);

/// How a style's letters look; nothing when its font is not installed.
std::optional<wxRichTextAttr> LettersOfStyle(const Corvane::StyleFormat& format);

/// What a style can name on this computer: the three of every computer, then the installed ones by name.
std::vector<wxString> StyleFonts();

}  // namespace mindloft
