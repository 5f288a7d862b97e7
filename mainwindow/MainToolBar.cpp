#include "mainwindow/MainToolBar.h"

#include <wx/control.h>
#include <wx/frame.h>
#include <wx/toolbar.h>

#include "controls/rows/DirectoryImages.h"
#include "mainwindow/CommandSet.h"
#include "platform/ui/Direction.h"

namespace mindloft {

namespace {

/// In pixels at 96 dpi.
constexpr int kToolSize = 20;

constexpr const char* kTools[] = {"mnuFileNew",        "mnuFileDelete",  "mnuFileProperties",     "",
                                  "mnuViewRefresh",    "mnuEditFind",    "mnuToolsConfiguration", "",
                                  "mnuViewFullScreen", "mnuHelpContents"};

}  // namespace

void MainToolBar::Build() {
  const bool shown = !frame_.GetToolBar() || IsShown();
  if (auto* old = frame_.GetToolBar()) {
    frame_.SetToolBar(nullptr);
    old->Destroy();
  }
  auto* bar = frame_.CreateToolBar(wxTB_FLAT | wxTB_HORIZONTAL, wxID_ANY, "tbrMain");
  bar->SetLayoutDirection(frame_.GetLayoutDirection());
  for (const wxString name : kTools) {
    const auto* command = commands_.Find(name);
    if (!command) {
      bar->AddSeparator();
      continue;
    }
    bar->AddTool(CommandSet::Id(name), wxControl::RemoveMnemonics(CommandSet::Caption(name)),
                 LoadImage(command->icon, kToolSize), CommandSet::Tip(name));
  }
  bar->Realize();
  platform::ApplyDirectionInside(*bar);
  if (!shown) Show(false);
}

void MainToolBar::Update(const SelectionState& selection) {
  auto* bar = frame_.GetToolBar();
  if (!bar) return;
  for (const wxString name : kTools)
    if (const auto* command = commands_.Find(name)) {
      const bool enabled = CommandSet::Enabled(*command, selection);
      const int id = CommandSet::Id(name);
      if (bar->GetToolEnabled(id) != enabled) bar->EnableTool(id, enabled);
    }
}

bool MainToolBar::IsShown() const {
  return frame_.GetToolBar() && frame_.GetToolBar()->IsShown();
}

void MainToolBar::Show(bool show) {
  if (auto* bar = frame_.GetToolBar()) bar->Show(show);
  frame_.SendSizeEvent();
}

}  // namespace mindloft
