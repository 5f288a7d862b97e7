#include "backend/directory/store/PrivilegeWords.h"

#include <utility>

#include "backend/directory/Privileges.h"

namespace mindloft {
namespace {

constexpr std::pair<SysPrivilege, const char*> kWords[] = {
    {ManageUsers, "create and change users"},
    {DeleteUsers, "delete users"},
    {ManageRoles, "put users into roles"},
    {CreateDomains, "create knowledge domains"},
    {ChangeDomains, "change any knowledge domain"},
    {DeleteDomains, "delete knowledge domains"},
    {ManageStyles, "manage styles"},
    {ReadJournal, "read the journal of changes"},
};

}  // namespace

std::string PrivilegeWords(std::uint32_t sysPrivileges) {
  std::string words;
  for (auto [privilege, word] : kWords) {
    if (!(sysPrivileges & privilege)) continue;
    if (!words.empty()) words += "; ";
    words += word;
  }
  if (!words.empty()) words[0] = static_cast<char>(words[0] - 'a' + 'A');
  return words;
}

}  // namespace mindloft
