#include "core/modShare.h"

#include <wx/app.h>
#include <wx/toplevel.h>

#include <algorithm>
#include <vector>

#include "backend/tessaline/Services.h"
#include "core/ErrorHandling.h"
#include "core/IdSource.h"
#include "platform/Random.h"

namespace mindloft {
namespace {

constexpr int messageNoGuid = 25005;
constexpr std::size_t guidSize = 16;
/// The kind of a domain's administrators group.
constexpr std::int32_t administratorsKind = 5;

std::shared_ptr<Corvane::User> CurrentUser() {
  auto connection = GetConnection();
  return connection ? connection->CurrentUser() : nullptr;
}

std::uint32_t LittleEndianWord(const std::string& bytes, std::size_t at) {
  std::uint32_t word = 0;
  for (std::size_t index = 4; index > 0; --index) {
    word = word << 8 | static_cast<unsigned char>(bytes[at + index - 1]);
  }
  return word;
}

}  // namespace

wxString CreateGUID() try {
  std::string bytes = platform::NewGuidBytes();
  if (bytes.size() != guidSize) {
    GetMessenger().ShowMessage(messageNoGuid);
    bytes.assign(guidSize, '\0');
  }
  wxString text;
  for (std::size_t at = guidSize; at > 0; at -= 4) {
    text += wxString::Format("%08X", LittleEndianWord(bytes, at - 4));
  }
  return text;
} catch (...) {
  Raise("modShare", "CreateGUID");
}

std::int32_t CreateId() try {
  static IdSource source;
  return source.Next();
} catch (...) {
  Raise("modShare", "CreateId");
}

bool CheckSysPrivilege(std::uint32_t privilege) try {
  auto user = CurrentUser();
  return user && user->HasSysPrivilege(privilege);
} catch (...) {
  Raise("modShare", "CheckSysPrivilege");
}

bool CheckDomainPrivilege(const std::shared_ptr<Corvane::DomainContext>& context,
                          std::uint32_t privilege) try {
  return context && context->HasPrivilege(privilege);
} catch (...) {
  Raise("modShare", "CheckDomainPrivilege");
}

bool GetCurrUserIsCurrDomainAdminstratorUser(const std::shared_ptr<Corvane::DomainContext>& context) try {
  auto user = CurrentUser();
  if (!context || !user) return false;
  auto administrators = context->KDomain()->DGroups()->OfKind(administratorsKind);
  return administrators && administrators->Members()->Item(user->Id());
} catch (...) {
  Raise("modShare", "GetCurrUserIsCurrDomainAdminstratorUser");
}

wxString SetURL(const wxString& url, const wxString& prefix, const wxString& replacement) try {
  wxString trimmed = url;
  trimmed.Trim(true).Trim(false);
  if (trimmed.empty()) return trimmed;
  bool replaces = trimmed.Left(prefix.length()).Upper() == prefix;
  return replaces ? replacement + trimmed.Mid(prefix.length()) : trimmed;
} catch (...) {
  Raise("modShare", "SetURL");
}

bool Shutdown(const wxTopLevelWindow* except) try {
  // Unloading a form may end others with it, so the forms are looked up anew each time.
  std::vector<wxWindow*> unloaded;
  auto next = [&]() -> wxWindow* {
    for (auto node = wxTopLevelWindows.GetLast(); node; node = node->GetPrevious()) {
      wxWindow* window = node->GetData();
      bool done = window == except || wxPendingDelete.Member(window) ||
                  std::find(unloaded.begin(), unloaded.end(), window) != unloaded.end();
      if (!done) return window;
    }
    return nullptr;
  };
  while (wxWindow* form = next()) {
    unloaded.push_back(form);
    if (!form->Close()) return false;
  }
  return true;
} catch (...) {
  Raise("modShare", "Shutdown");
}

}  // namespace mindloft
