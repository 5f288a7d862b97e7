#include "mainwindow/objects/ObjectCommands.h"

#include "core/ErrorHandling.h"
#include "mainwindow/DomainContexts.h"
#include "mainwindow/ObjectKindRegistry.h"
#include "mainwindow/SelectionReader.h"
#include "mainwindow/objects/Questions.h"

namespace mindloft {

void ObjectCommands::NewObject(const wxString& kind, const wxString& domainKey, int) try {
  const auto* registered = kinds_.Find(kind);
  if (!registered || !registered->create.action) return;
  KindScope scope = selection_.Read().scope;
  scope.domain = domains_.Item(domainKey);
  scope.owner = &owner_;
  if (registered->inDomain && !scope.domain) return;
  registered->create.action(scope, {});
} catch (...) {
  Raise("frmSysAdmin", "NewObject");
}

void ObjectCommands::DeleteObject() try {
  auto selection = selection_.Read();
  if (!selection.target || selection.targets == 0) return;
  const auto& remove = selection.target->remove;
  if (!remove.action || (selection.targets > 1 && !remove.onMany)) return;
  if (!MayDeleteSelected(selection.targets, &owner_)) return;
  selection.scope.owner = &owner_;
  remove.action(selection.scope, selection_.Keys());
} catch (...) {
  Raise("frmSysAdmin", "DeleteObject");
}

void ObjectCommands::SetProperty(const wxString& kind, const wxString& key) try {
  const auto* registered = kinds_.Find(kind);
  if (!registered || !registered->edit.action) return;
  KindScope scope = selection_.Read().scope;
  scope.owner = &owner_;
  if (registered->inDomain && !scope.domain) return;
  registered->edit.action(scope, {key});
} catch (...) {
  Raise("frmSysAdmin", "SetProperty");
}

}  // namespace mindloft
