#include "tests/support/gui/WaitFor.h"

#include <wx/app.h>
#include <wx/stopwatch.h>
#include <wx/utils.h>

#include <stdexcept>

namespace mindloft::test {
namespace {

constexpr long longestWait = 10000;  // milliseconds: reached only by a test that fails

}  // namespace

void Settle() {
  wxTheApp->Yield(true);
  // Updating the state of menus and tools is idle work.
  while (wxTheApp->ProcessIdle()) {
    wxTheApp->Yield(true);
  }
}

void WaitFor(const std::function<bool()>& condition, const std::string& what) {
  wxStopWatch watch;
  while (!condition()) {
    if (watch.Time() > longestWait) throw std::runtime_error("waited in vain for " + what);
    Settle();
    wxMilliSleep(2);
  }
}

}  // namespace mindloft::test
