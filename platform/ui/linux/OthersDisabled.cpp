#include "platform/ui/OthersDisabled.h"

#include <gtk/gtk.h>
#include <wx/toplevel.h>

#include <vector>

namespace mindloft::platform {

class OthersDisabled::KeptFocus {
 public:
  KeptFocus() {
    for (const wxWindow* each : wxTopLevelWindows) {
      if (!GTK_IS_WINDOW(each->m_widget)) continue;
      auto* window = GTK_WINDOW(each->m_widget);
      if (GtkWidget* focus = gtk_window_get_focus(window)) focuses_.push_back({Hold(window), Hold(focus)});
    }
  }
  ~KeptFocus() {
    for (const auto& [window, focus] : focuses_) {
      // The control, or all of the window, may be gone.
      const bool isThere = gtk_widget_get_toplevel(focus.get()) == GTK_WIDGET(window.get());
      if (isThere && gtk_widget_is_sensitive(focus.get()) && !gtk_window_get_focus(window.get()))
        gtk_window_set_focus(window.get(), focus.get());
    }
  }
  KeptFocus(const KeptFocus&) = delete;
  KeptFocus& operator=(const KeptFocus&) = delete;

 private:
  struct Release {
    void operator()(gpointer object) const { g_object_unref(object); }
  };
  template <typename Object>
  using Held = std::unique_ptr<Object, Release>;
  template <typename Object>
  static Held<Object> Hold(Object* object) {
    return Held<Object>(static_cast<Object*>(g_object_ref(object)));
  }
  struct Focus {
    Held<GtkWindow> window;
    Held<GtkWidget> focus;
  };

  std::vector<Focus> focuses_;
};

OthersDisabled::OthersDisabled(wxWindow* exception)
    : focus_(std::make_unique<KeptFocus>()), disabler_(std::make_unique<wxWindowDisabler>(exception)) {}

OthersDisabled::~OthersDisabled() = default;

}  // namespace mindloft::platform
