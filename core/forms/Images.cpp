#include "core/forms/Images.h"

#include "backend/tessaline/Text.h"
#include "platform/EmbeddedFile.h"

namespace mindloft {

wxBitmapBundle LoadImage(const wxString& name, int size) {
  const auto svg = platform::EmbeddedFile("images/" + ToUtf8(name) + ".svg");
  if (svg.empty()) return {};
  // The toolkit parses the text in place, so it gets a copy.
  const std::string text(svg);
  return wxBitmapBundle::FromSVG(text.c_str(), wxSize(size, size));
}

wxIconBundle WindowIcons() {
  wxIconBundle icons;
  const auto image = LoadImage("app");
  // Title bar and task switcher; the system scales the rest.
  for (const int size : {16, 32}) {
    wxIcon icon;
    icon.CopyFromBitmap(image.GetBitmap(wxSize(size, size)));
    icons.AddIcon(icon);
  }
  return icons;
}

}  // namespace mindloft
