#include "mainwindow/DirectoryLists.h"

#include "backend/corvane/Corvane.h"
#include "backend/errors/Error.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryImages.h"
#include "controls/rows/RecordRows.h"
#include "core/ErrorHandling.h"
#include "mainwindow/DirectoryTree.h"
#include "mainwindow/FixedRows.h"
#include "mainwindow/ObjectKindRegistry.h"
#include "mainwindow/WorkingArea.h"

namespace mindloft {

namespace {

/// The width of the empty column that ends every set.
constexpr int kEndColumnWidth = 20;

}  // namespace

DirectoryLists::DirectoryLists(WorkingArea& area, const ObjectKindRegistry& kinds, const DirectoryTree& tree,
                               std::shared_ptr<Corvane::Server> server)
    : area_(area), kinds_(kinds), tree_(tree), server_(std::move(server)) {}

void DirectoryLists::AddColumn(const wxString& nodeKey) try {
  area_.Explorer().ClearList();
  rows_.reset();
  const auto* kind = kinds_.Find(nodeKey);
  if (!kind) return;
  for (const auto& column : kind->columns)
    area_.Explorer().AddColumn({GetResource().GetString(column.caption), column.width});
  area_.Explorer().AddColumn({wxString(), kEndColumnWidth});
} catch (...) {
  Raise("frmSysAdmin", "AddColumn");
}

void DirectoryLists::ListObjects(const wxString& nodeKey,
                                 const std::shared_ptr<Corvane::DomainContext>& domain) {
  const auto* kind = kinds_.Find(nodeKey);
  // A folder of a domain that is gone meanwhile lists nothing.
  if (!kind || !kind->rows || (kind->inDomain && !domain)) return;
  Show(kind->rows({server_, domain}));
}

void DirectoryLists::ListChildNodes(int parent) {
  std::vector<ExplorerRow> rows;
  const int count = area_.Explorer().TreeNodeCount();
  for (int index = parent + 1; index < count; ++index)
    if (area_.Explorer().TreeNodeParent(index) == parent)
      rows.push_back(
          {area_.Explorer().TreeNodeText(index), area_.Explorer().TreeNodeKey(index), FolderImage});
  Show(std::make_shared<FixedRows>(std::move(rows)));
}

void DirectoryLists::Show(std::shared_ptr<ExplorerRows> rows) {
  rows_ = std::move(rows);
  area_.Explorer().SetRows(rows_);
}

}  // namespace mindloft
