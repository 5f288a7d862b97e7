#include "mainwindow/RefreshHandlers.h"

#include <ranges>

#include "backend/corvane/Corvane.h"
#include "backend/tessaline/Text.h"
#include "controls/explorer/ctExplorer.h"
#include "core/ErrorHandling.h"
#include "core/Refresh.h"
#include "mainwindow/DirectoryTree.h"
#include "mainwindow/DomainContexts.h"
#include "mainwindow/TreeKeys.h"
#include "mainwindow/frmSysAdmin.h"

namespace mindloft {

namespace {

/// The object of a notification; nothing when it is of another type.
template <typename Object>
std::shared_ptr<Object> As(const std::any& object) {
  const auto* pointer = std::any_cast<std::shared_ptr<Object>>(&object);
  return pointer ? *pointer : nullptr;
}

bool IsKnown(std::int32_t action) {
  return action >= static_cast<std::int32_t>(ObjectAction::Created) &&
         action <= static_cast<std::int32_t>(ObjectAction::Changed);
}

}  // namespace

void RefreshHandlers::Dispatch(std::int32_t kind, std::int32_t action, const std::any& object) {
  if (!IsKnown(action)) return;
  switch (static_cast<ObjectKind>(kind)) {
    case ObjectKind::Domain:
      return RefreshDomainNode(action, object);
    case ObjectKind::UserGroup:
      return RefreshUserGroupNode(action, object);
    case ObjectKind::User:
      return RefreshUserNode(action, object);
    case ObjectKind::DomainUser:
      return RefreshDomainUserNode(action, object);
  }
}

void RefreshHandlers::RefreshDomainNode(std::int32_t, const std::any& object) try {
  const auto context = As<Corvane::DomainContext>(object);
  if (!context || !context->KDomain() || context->KDomain()->IsNew()) return;
  // Whatever was done to the domain, the directory says what is left of it.
  ShowStoredDomains();
  RefreshListOf(keys::kDomains);
} catch (...) {
  Raise("frmSysAdmin", "RefreshDomainNode");
}

void RefreshHandlers::ShowStoredDomains() {
  const auto changes = domains_.Read();
  for (const auto& key : changes.gone) RemoveDomain(key);
  // Their order is that of the names, so only these have another place. From the last one on, each finds the
  // domain before which it belongs in its place already.
  for (const auto& key : std::views::reverse(changes.shown))
    if (const auto context = domains_.Item(key)) form_.Tree().UpdateDomain(context);
}

void RefreshHandlers::RemoveDomain(const wxString& key) {
  auto& tree = form_.Tree();
  auto& explorer = form_.Explorer();
  const int selected = explorer.SelectedTreeNode();
  const bool inside = selected >= 0 && tree.DomainKey(selected) == key;
  // The node goes after the selection has left it: a list of what is gone must not be asked for.
  if (inside) explorer.SelectTreeNode(explorer.TreeNodeParent(tree.DomainNode(key)));
  tree.RemoveDomain(key);
}

void RefreshHandlers::RefreshUserGroupNode(std::int32_t, const std::any& object) try {
  const auto group = As<Corvane::DGroup>(object);
  if (!group) return;
  const int selected = form_.GetTreeNodeIndex();
  if (selected >= 0 && form_.Tree().DomainKey(selected) == ToWx(group->DomainId()))
    RefreshListOf(keys::kDomainGroups);
} catch (...) {
  Raise("frmSysAdmin", "RefreshUserGroupNode");
}

void RefreshHandlers::RefreshUserNode(std::int32_t, const std::any& object) try {
  if (!As<Corvane::User>(object)) return;
  RefreshListOf(keys::kUsers);
  // A user's new name or end shows in the domains too, and one's own name in the status bar.
  RefreshListOf(keys::kDomainUsers);
  form_.ShowUser();
} catch (...) {
  Raise("frmSysAdmin", "RefreshUserNode");
}

void RefreshHandlers::RefreshDomainUserNode(std::int32_t, const std::any& object) try {
  if (As<Corvane::User>(object)) RefreshListOf(keys::kDomainUsers);
} catch (...) {
  Raise("frmSysAdmin", "RefreshDomainUserNode");
}

void RefreshHandlers::RefreshListOf(const wxString& nodeKey) {
  const int selected = form_.GetTreeNodeIndex();
  if (selected < 0 || form_.Tree().KindKey(selected) != nodeKey) return;
  form_.Explorer().RefreshList();
  form_.UpdateCommands();
}

}  // namespace mindloft
