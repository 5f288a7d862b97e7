#pragma once

namespace mindloft {

class CommandSet;
class ObjectKindRegistry;
class SelectionReader;

/// Adds new, delete and properties for whatever is selected, and for every registered kind by name. All
/// arguments must outlive the set.
void AddKindCommands(CommandSet& commands, const ObjectKindRegistry& kinds, const SelectionReader& selection);

}  // namespace mindloft
