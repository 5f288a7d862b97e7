#include "editors/members/UserListColumns.h"

#include "backend/tessaline/Services.h"
#include "controls/explorer/ExplorerLists.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryImages.h"

namespace mindloft {
namespace {

constexpr int kName = 59306;
constexpr int kFullName = 59307;
constexpr int kDescription = 59308;
constexpr int kSearchHint = 61104;

}  // namespace

void ShowUserColumns(ctExplorer& ctUser) {
  auto& resource = GetResource();
  SpecifyBreakChar(ctUser);
  ctUser.SetImages(ExplorerImages());
  ctUser.SetColumns({{resource.GetString(kName), 130},
                     {resource.GetString(kFullName), 160},
                     {resource.GetString(kDescription), 170}});
  ctUser.SetSearchHint(resource.GetString(kSearchHint));
}

}  // namespace mindloft
