#include "core/LanguageImport.h"

#include <wx/timer.h>

#include <memory>
#include <utility>

#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/ErrorHandling.h"
#include "core/Refresh.h"
#include "platform/Paths.h"
#include "platform/RegistryImport.h"

namespace mindloft {
namespace {

using platform::RegistryRoot;

constexpr int kLanguageFailed = 61111;
constexpr int kImportNotStarted = 61800;
constexpr int kFileIsDamaged = 61801;
constexpr int kMachineNotWritten = 61802;
constexpr int kImportHadNoEffect = 61803;
/// Between two looks at the registry editor, in milliseconds.
constexpr int kTimerInterval = 50;

/// Once is enough: what is missing serves other programs only.
bool toldOfMachine = false;

void TellOfMachine() {
  if (!std::exchange(toldOfMachine, true)) GetMessenger().ShowMessage(kMachineNotWritten);
}

/// One import, from its beginning until its effect is known.
class Import : public wxEvtHandler {
 public:
  Import(int code, const wxString& file, std::unique_ptr<platform::RegistryImport> running)
      : code_(code), file_(file), running_(std::move(running)), timer1_(this) {
    Bind(wxEVT_TIMER, [this](wxTimerEvent&) { Timer1_Timer(); });
  }

  /// False when it has ended already, without effect.
  bool Start() {
    if (!running_->IsRunning()) return Finish();
    timer1_.Start(kTimerInterval);
    return true;
  }

 private:
  void Timer1_Timer() {
    if (running_->IsRunning()) return;
    timer1_.Stop();
    Guarded("LanguageImport", "Finish", [this] { Finish(); });
  }

  bool Finish() {
    auto& resource = GetResource();
    const bool taken =
        GetRegistry().IsImported(file_, RegistryRoot::CurrentUser) && resource.SwitchLanguage(code_);
    resource.KeepLanguage();
    if (!taken) {
      GetMessenger().ShowMessage(kImportHadNoEffect, {resource.LanguageName(code_)});
      return false;
    }
    GetRefresh()->NotifyLanguage();
    if (!GetRegistry().IsImported(file_, RegistryRoot::LocalMachine)) TellOfMachine();
    return true;
  }

  int code_;
  wxString file_;
  std::unique_ptr<platform::RegistryImport> running_;
  wxTimer timer1_;
};

/// The last one that was begun: a language that is chosen meanwhile takes its place.
std::unique_ptr<Import>& LastImport() {
  static std::unique_ptr<Import> import;
  return import;
}

/// Nothing when it could not be begun, of which the user has been told.
std::unique_ptr<platform::RegistryImport> Begin(int code, const wxString& file) {
  try {
    return GetRegistry().Import(file);
  } catch (...) {
    ReportOnly("LanguageImport", "Begin");
    GetMessenger().ShowMessage(kImportNotStarted, {GetResource().LanguageName(code)});
    return nullptr;
  }
}

}  // namespace

wxString LanguageRegistryFile(int code) try {
  const auto& resource = GetResource();
  const wxString name = resource.GetLanguageValue(wxString::Format("%d", code));
  if (name.empty()) return {};
  // An installed program's texts may lie beside its folder.
  for (const auto& folder : {platform::ProgramFolder(), resource.LanguageFolder()}) {
    const wxString path = GetUtility().LocateFile("\\" + name, ToWx(platform::PathToUtf8(folder)));
    if (!path.empty()) return path;
  }
  return {};
} catch (...) {
  Raise("LanguageImport", "LanguageRegistryFile");
}

bool ImportLanguage(int code, const wxString& registryFile) try {
  const auto& resource = GetResource();
  if (!resource.CanSwitchTo(code)) {
    GetMessenger().ShowMessage(kLanguageFailed, {resource.LanguageName(code)});
    return false;
  }
  if (!platform::IsRegistryFile(platform::PathFromUtf8(ToUtf8(registryFile)))) {
    GetMessenger().ShowMessage(kFileIsDamaged, {registryFile});
    return false;
  }
  auto running = Begin(code, registryFile);
  if (!running) return false;
  LastImport() = std::make_unique<Import>(code, registryFile, std::move(running));
  return LastImport()->Start();
} catch (...) {
  Raise("LanguageImport", "ImportLanguage");
}

void EndLanguageImport() {
  toldOfMachine = false;
  LastImport().reset();
}

}  // namespace mindloft
