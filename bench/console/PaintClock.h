#pragma once

#include <functional>

class wxWindow;

namespace mindloft::bench {

/// Milliseconds of the monotonic clock.
double NowMs();

/// The desktop fades controls in and out over 200 ms; what counts is when the contents are there. To be
/// called before what is measured: it styles every control anew that is there already.
void StopAnimations();

/// Measures from an action to the last pixel that it paints: the toolkit's frame clock tells when a frame has
/// been drawn and handed to the display.
class PaintClock {
 public:
  /// Watches the window that `inside` is in; it must be shown.
  explicit PaintClock(wxWindow& inside);
  ~PaintClock();
  PaintClock(const PaintClock&) = delete;
  PaintClock& operator=(const PaintClock&) = delete;

  /// Runs the action, serves events until nothing was painted for `quietMs`, and returns the time from the
  /// action's begin to the end of the last frame, in milliseconds.
  double Measure(const std::function<void()>& action, double quietMs = 100);

  /// Whether a frame was painted since the clock began to watch.
  bool HasPainted() const { return lastPaint_ > 0; }
  /// When the last frame was painted, on the clock of NowMs; 0 when none was.
  double LastPaint() const { return lastPaint_; }

  /// Serves events until nothing was painted for that long.
  void Settle(double quietMs = 100);

 private:
  static void AfterPaint(void* clock, void* self);

  void* frameClock_ = nullptr;
  unsigned long handler_ = 0;
  double lastPaint_ = 0;
};

}  // namespace mindloft::bench
