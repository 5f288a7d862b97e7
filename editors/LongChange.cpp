#include "editors/LongChange.h"

#include <memory>

#include "backend/errors/Error.h"
#include "editors/domains/frmDeleteKDomainProgress.h"
#include "platform/Clock.h"

namespace mindloft {

bool RunLongChange(wxWindow* owner, const wxString& caption, std::chrono::milliseconds patience,
                   const std::function<void(const Progress& progress)>& change) {
  const auto begun = platform::MonotonicMilliseconds();
  std::unique_ptr<frmDeleteKDomainProgress> form;
  try {
    change([&](std::int64_t done, std::int64_t total) {
      if (!form) {
        if (platform::MonotonicMilliseconds() - begun < patience.count()) return true;
        form = std::make_unique<frmDeleteKDomainProgress>(owner, caption);
      }
      return form->Report(done, total);
    });
  } catch (const Error& error) {
    if (error.Number() != ErrorNumber::Cancelled) throw;
    return false;
  }
  return true;
}

}  // namespace mindloft
