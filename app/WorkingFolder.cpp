#include "app/modPublic.h"
#include "backend/tessaline/Services.h"
#include "config/modService.h"
#include "core/ErrorHandling.h"
#include "platform/ui/FileDialogs.h"

namespace mindloft {
namespace {

constexpr int kAskForFolder = 59805;
constexpr char kParent[] = "frmConfig", kName[] = "WorkingFolder", kAttribute[] = "Value";

}  // namespace

wxString GetWorkingFolder(bool ask) try {
  const auto stored = UserConfigDescribe(kParent, kName, kAttribute, "AsString", wxString());
  if (const auto* folder = std::get_if<wxString>(&stored); folder && !folder->empty()) return *folder;
  if (!ask || !GetMessenger().Ask(kAskForFolder, Tessaline::kInformationTitle, Tessaline::Buttons::YesNo,
                                  Tessaline::MessageKind::Information)) {
    return {};
  }
  const wxString chosen = platform::BrowseFolder(nullptr);
  if (!chosen.empty()) UserConfigModify(kParent, kName, kAttribute, chosen);
  return chosen;
} catch (...) {
  Raise("modPublic", "GetWorkingFolder");
}

}  // namespace mindloft
