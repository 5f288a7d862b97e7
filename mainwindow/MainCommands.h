#pragma once

namespace mindloft {

class CommandSet;
class frmSysAdmin;

/// Adds the commands of the main window itself: edit, view, tools, help. The form must outlive the set.
void AddMainCommands(CommandSet& commands, frmSysAdmin& form);

}  // namespace mindloft
