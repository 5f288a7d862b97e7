#include "bench/console/PaintClock.h"

#include <gtk/gtk.h>
#include <time.h>
#include <wx/utils.h>
#include <wx/window.h>

#include <algorithm>
#include <stdexcept>

namespace mindloft::bench {

double NowMs() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

void StopAnimations() {
  g_object_set(gtk_settings_get_default(), "gtk-enable-animations", FALSE, nullptr);
}

PaintClock::PaintClock(wxWindow& inside) {
  frameClock_ = gtk_widget_get_frame_clock(inside.GetHandle());
  if (!frameClock_) throw std::runtime_error("the window is not shown");
  g_object_ref(frameClock_);
  handler_ = g_signal_connect(frameClock_, "after-paint", G_CALLBACK(&PaintClock::AfterPaint), this);
}

PaintClock::~PaintClock() {
  g_signal_handler_disconnect(frameClock_, handler_);
  g_object_unref(frameClock_);
}

void PaintClock::AfterPaint(void*, void* self) {
  // Wait for the display: a frame that is still in the pipe is not on the screen.
  gdk_display_sync(gdk_display_get_default());
  static_cast<PaintClock*>(self)->lastPaint_ = NowMs();
}

double PaintClock::Measure(const std::function<void()>& action, double quietMs) {
  Settle(quietMs);
  double begin = NowMs();
  lastPaint_ = begin;
  action();
  Settle(quietMs);
  return lastPaint_ - begin;
}

void PaintClock::Settle(double quietMs) {
  double begin = NowMs();
  while (NowMs() - std::max(lastPaint_, begin) < quietMs) {
    // The toolkit's own idle work is one of the context's sources.
    for (int i = 0; i < 100 && g_main_context_iteration(nullptr, FALSE); ++i) {
    }
    timespec pause{0, 200'000};
    nanosleep(&pause, nullptr);
  }
}

}  // namespace mindloft::bench
