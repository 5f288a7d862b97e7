#include "mainwindow/KindCommands.h"

#include <utility>

#include "mainwindow/CommandSet.h"
#include "mainwindow/ObjectKindRegistry.h"
#include "mainwindow/objects/ObjectMenu.h"

namespace mindloft {

namespace {

bool Possible(const KindCommand& command, const KindScope& scope) {
  return command.action && (!command.allowed || command.allowed(scope));
}

bool PossibleOnTargets(const KindCommand& command, const SelectionState& selection) {
  return selection.targets > 0 && (selection.targets == 1 || command.onMany) &&
         Possible(command, selection.scope);
}

/// A new object of a kind that lives in a domain needs the domain to be selected.
bool CanCreate(const DirectoryKind* kind, const SelectionState& selection) {
  return kind && (!kind->inDomain || selection.scope.domain) && Possible(kind->create, selection.scope);
}

/// Delete or properties of what is selected.
using Member = KindCommand DirectoryKind::*;

}  // namespace

void AddKindCommands(CommandSet& commands, const ObjectKindRegistry& kinds, ObjectMenu& menu) {
  const auto add = [&](const wxString& name, const wxString& shortcut,
                       std::function<bool(const SelectionState&)> enabled) {
    if (!name.empty()) commands.Add({name, shortcut, menu.Handler(name), std::move(enabled)});
  };
  const auto addForSelection = [&](const wxString& name, const wxString& shortcut, Member member) {
    add(name, shortcut, [member](const SelectionState& selection) {
      return selection.target && PossibleOnTargets(selection.target->*member, selection);
    });
  };
  const auto addOfKind = [&](const DirectoryKind& kind, Member member) {
    add((kind.*member).name, {}, [&kind, member](const SelectionState& selection) {
      return selection.target == &kind && PossibleOnTargets(kind.*member, selection);
    });
  };

  add("mnuFileNew", "Ctrl+N",
      [](const SelectionState& selection) { return CanCreate(selection.listed, selection); });
  addForSelection("mnuFileDelete", {}, &DirectoryKind::remove);
  addForSelection("mnuFileProperties", "Alt+Enter", &DirectoryKind::edit);
  for (const auto& kind : kinds.All()) {
    add(kind.create.name, {},
        [&kind](const SelectionState& selection) { return CanCreate(&kind, selection); });
    addOfKind(kind, &DirectoryKind::remove);
    addOfKind(kind, &DirectoryKind::edit);
  }
}

}  // namespace mindloft
