#pragma once

namespace mindloft {

class CommandSet;
class ObjectKindRegistry;
class ObjectMenu;

/// Adds new, delete and properties for whatever is selected, and for every registered kind by name. All
/// arguments must outlive the set.
void AddKindCommands(CommandSet& commands, const ObjectKindRegistry& kinds, ObjectMenu& menu);

}  // namespace mindloft
