#pragma once

#include <vector>

class wxKeyEvent;

namespace mindloft {

class RichTextControl;

/// A command as the button bar, the context menu and the keyboard know it.
struct EditCommand {
  const char* name;  ///< its drawing's, too
  int text;
  int key;        ///< with `modifiers`; 0: none
  int modifiers;  ///< wxMOD_...
  void (*run)(RichTextControl&);
  bool (*isEnabled)(const RichTextControl&);
  bool (*isChecked)(const RichTextControl&);  ///< null: it is no switch
};

const std::vector<EditCommand>& EditCommands();
/// Throws when there is none of that name.
const EditCommand& CommandOf(const char* name);
/// Runs it; errors are shown.
void RunCommand(RichTextControl& control, const EditCommand& command);
/// Runs the command that the key stands for; false when it stands for none, or for one that cannot be used
/// now.
bool RunCommandOfKey(RichTextControl& control, const wxKeyEvent& event);
/// All commands, at the pointer, or at the caret when the keyboard asked for them.
void ShowEditMenu(RichTextControl& control);

}  // namespace mindloft
