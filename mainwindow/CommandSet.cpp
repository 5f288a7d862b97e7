#include "mainwindow/CommandSet.h"

#include <wx/control.h>
#include <wx/xrc/xmlres.h>

#include "backend/tessaline/Services.h"
#include "core/ErrorHandling.h"

namespace mindloft {

void CommandSet::Add(Command command) {
  commands_.push_back(std::move(command));
}

const Command* CommandSet::Find(const wxString& name) const {
  for (const auto& command : commands_)
    if (command.name == name) return &command;
  return nullptr;
}

const Command* CommandSet::FindById(int id) const {
  for (const auto& command : commands_)
    if (Id(command.name) == id) return &command;
  return nullptr;
}

void CommandSet::Run(const Command& command, const SelectionState& selection) const noexcept {
  try {
    if (Enabled(command, selection)) command.run();
  } catch (...) {
    ShowError("frmSysAdmin", (command.name + "_Click").utf8_str());
  }
}

bool CommandSet::Enabled(const Command& command, const SelectionState& selection) {
  return command.run && (!command.enabled || command.enabled(selection));
}

int CommandSet::Id(const wxString& name) {
  return wxXmlResource::GetXRCID(name);
}

wxString CommandSet::Caption(const wxString& name) {
  const auto caption = GetResource().Language().CaptionOf("frmSysAdmin", name);
  return caption ? caption->text : "#" + name;
}

wxString CommandSet::Tip(const wxString& name) {
  const auto caption = GetResource().Language().CaptionOf("frmSysAdmin", name);
  if (caption && !caption->tip.empty()) return caption->tip;
  return wxControl::RemoveMnemonics(Caption(name));
}

}  // namespace mindloft
