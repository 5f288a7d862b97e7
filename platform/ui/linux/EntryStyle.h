#pragma once

#include <gtk/gtk.h>

#include <memory>
#include <string>

class wxColour;

namespace mindloft::platform {

struct UnrefObject {
  void operator()(gpointer object) const { g_object_unref(object); }
};
using StyleContext = std::unique_ptr<GtkStyleContext, UnrefObject>;

/// The theme's style of a text box on the widget's screen, with another background if one is given.
StyleContext EntryStyle(GtkWidget* widget, const wxColour& background);

/// Adds a rule of the style language that overrides the theme's.
void AddRule(GtkStyleContext* style, const std::string& rule);

/// Lets boxes for passwords show bullets, unless the desktop's theme says otherwise. Each new box for a line
/// of text looks for a character to hide texts with that its font has; the toolkit's first choice is missing
/// in many a font, which makes it load another one to draw that with. Calling it again changes nothing.
void PreferBullets();

}  // namespace mindloft::platform
