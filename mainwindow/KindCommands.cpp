#include "mainwindow/KindCommands.h"

#include "mainwindow/CommandSet.h"
#include "mainwindow/ObjectKindRegistry.h"

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

void AddForSelection(CommandSet& commands, const SelectionReader& reader, const wxString& name,
                     const wxString& shortcut, const wxString& icon, Member member) {
  commands.Add({.name = name,
                .shortcut = shortcut,
                .icon = icon,
                .run =
                    [&reader, member] {
                      const auto selection = reader.Read();
                      (selection.target->*member).action(selection.scope, reader.Keys());
                    },
                .enabled =
                    [member](const SelectionState& selection) {
                      return selection.target && PossibleOnTargets(selection.target->*member, selection);
                    }});
}

void AddOfKind(CommandSet& commands, const SelectionReader& reader, const DirectoryKind& kind,
               const wxString& icon, Member member) {
  const wxString& name = (kind.*member).name;
  if (name.empty()) return;
  commands.Add(
      {.name = name,
       .shortcut = {},
       .icon = icon,
       .run = [&reader, &kind, member] { (kind.*member).action(reader.Read().scope, reader.Keys()); },
       .enabled =
           [&kind, member](const SelectionState& selection) {
             return selection.target == &kind && PossibleOnTargets(kind.*member, selection);
           }});
}

}  // namespace

void AddKindCommands(CommandSet& commands, const ObjectKindRegistry& kinds, const SelectionReader& reader) {
  commands.Add(
      {.name = "mnuFileNew",
       .shortcut = "Ctrl+N",
       .icon = "new",
       .run =
           [&reader] {
             const auto selection = reader.Read();
             selection.listed->create.action(selection.scope, {});
           },
       .enabled = [](const SelectionState& selection) { return CanCreate(selection.listed, selection); }});
  AddForSelection(commands, reader, "mnuFileDelete", {}, "delete", &DirectoryKind::remove);
  AddForSelection(commands, reader, "mnuFileProperties", "Alt+Enter", "properties", &DirectoryKind::edit);

  for (const auto& kind : kinds.All()) {
    if (!kind.create.name.empty())
      commands.Add(
          {.name = kind.create.name,
           .shortcut = {},
           .icon = "new",
           .run = [&reader, &kind] { kind.create.action(reader.Read().scope, {}); },
           .enabled = [&kind](const SelectionState& selection) { return CanCreate(&kind, selection); }});
    AddOfKind(commands, reader, kind, "delete", &DirectoryKind::remove);
    AddOfKind(commands, reader, kind, "properties", &DirectoryKind::edit);
  }
}

}  // namespace mindloft
