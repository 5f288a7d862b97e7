#include "config/UrlList.h"

#include "backend/tessaline/Services.h"

namespace mindloft {
namespace {

constexpr auto kRoot = platform::RegistryRoot::CurrentUser;
constexpr const char* kKey = "Software\\Ordwell\\Mindloft\\URLLIST";

}  // namespace

std::vector<KnownUrl> ReadUrlList() {
  std::vector<KnownUrl> known;
  for (auto& [name, text] : GetRegistry().EnumValues(kRoot, kKey)) known.push_back({name, text});
  return known;
}

void WriteUrl(const KnownUrl& known) {
  GetRegistry().SetString(kRoot, kKey, known.key, known.url);
}

void DeleteUrl(const wxString& key) {
  GetRegistry().DeleteValue(kRoot, kKey, key);
}

wxString TrimmedUrl(const wxString& text) {
  wxString trimmed = text;
  return trimmed.Trim(true).Trim(false);
}

}  // namespace mindloft
