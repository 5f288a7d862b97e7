#pragma once

#include <wx/string.h>

#include <functional>
#include <list>
#include <vector>

#include "mainwindow/SelectionReader.h"

namespace mindloft {

/// One command of the menus, the toolbar and the keyboard.
struct Command {
  /// The menu item's name: its caption and tip stand under it in the language files, and its handler is
  /// reported as <name>_Click.
  wxString name;
  wxString shortcut;  ///< "Ctrl+F"; empty: none
  std::function<void()> run;
  std::function<bool(const SelectionState& selection)> enabled = {};  ///< empty: always
  std::function<bool()> checked = {};                                 ///< empty: no check mark
};

/// The table of all commands.
class CommandSet {
 public:
  void Add(Command command);
  /// Nothing for an unknown name or identifier.
  const Command* Find(const wxString& name) const;
  const Command* FindById(int id) const;
  const std::list<Command>& All() const { return commands_; }

  /// Runs a command as its menu item would; a disabled one does nothing. Shows what goes wrong.
  void Run(const Command& command, const SelectionState& selection) const noexcept;
  static bool Enabled(const Command& command, const SelectionState& selection);

  /// The identifier of a command's menu item and tool.
  static int Id(const wxString& name);
  /// The caption, with its access key, and the tip in the current language; "#name" where there is none.
  static wxString Caption(const wxString& name);
  static wxString Tip(const wxString& name);

 private:
  std::list<Command> commands_;
};

}  // namespace mindloft
