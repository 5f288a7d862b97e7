#include "editors/SessionLanguage.h"

#include <wx/app.h>
#include <wx/recguard.h>

#include "backend/tessaline/Services.h"
#include "core/ErrorHandling.h"
#include "core/ErrorText.h"
#include "editors/LongChange.h"

namespace mindloft {
namespace {

constexpr int kSorting = 61150;
constexpr int kOrderKept = 61151;  ///< %1 why

void TellLater(const Error& error) {
  wxTheApp->CallAfter([error] {
    Guarded("SessionLanguage", "TellLater", [&] { GetMessenger().ShowMessage(kOrderKept, {TextOf(error)}); });
  });
}

void SetLanguage(const std::shared_ptr<Corvane::Connection>& connection, int language) try {
  RunLongChange(nullptr, GetResource().GetString(kSorting), kPatience,
                [&](const Progress& progress) { connection->SetLanguage(language, progress); });
} catch (...) {
  ReportOnly("SessionLanguage", "SetLanguage");
  TellLater(CurrentError());
}

}  // namespace

void SetSessionLanguage() try {
  const auto connection = GetConnection();
  if (!connection || !connection->IsLoggedIn()) return;
  // While users are sorted the windows live: a language that is imported can arrive then.
  static wxRecursionGuardFlag running = 0;
  const wxRecursionGuard guard(running);
  if (guard.IsInside()) return;
  int language = 0;
  do {
    language = GetResource().CurrentLanguage();
    SetLanguage(connection, language);
  } while (language != GetResource().CurrentLanguage());
} catch (...) {
  ShowError("SessionLanguage", "SetSessionLanguage");
}

}  // namespace mindloft
