#include "mainwindow/MainToolBar.h"

#include <wx/control.h>
#include <wx/frame.h>
#include <wx/toolbar.h>

#include "mainwindow/CommandSet.h"
#include "platform/ui/Direction.h"

namespace mindloft {

namespace {

/// In pixels at 96 dpi.
constexpr int kToolSize = 20;

struct Tool {
  const char* command;  ///< empty: a separator
  const char* image;
};

constexpr Tool kTools[] = {{"mnuFileNew", "new"},
                           {"mnuFileDelete", "delete"},
                           {"mnuFileProperties", "properties"},
                           {"", ""},
                           {"mnuViewRefresh", "refresh"},
                           {"mnuEditFind", "find"},
                           {"mnuToolsConfiguration", "settings"},
                           {"", ""},
                           {"mnuViewFullScreen", "fullscreen"},
                           {"mnuHelpContents", "help"}};

}  // namespace

void MainToolBar::Build() {
  const bool shown = !frame_.GetToolBar() || IsShown();
  if (auto* old = frame_.GetToolBar()) {
    frame_.SetToolBar(nullptr);
    old->Destroy();
  }
  auto* bar = frame_.CreateToolBar(wxTB_FLAT | wxTB_HORIZONTAL, wxID_ANY, "tbrMain");
  bar->SetLayoutDirection(frame_.GetLayoutDirection());
  for (const auto& [name, image] : kTools) {
    if (!commands_.Find(name)) {
      bar->AddSeparator();
      continue;
    }
    bar->AddTool(CommandSet::Id(name), wxControl::RemoveMnemonics(CommandSet::Caption(name)),
                 LoadImage(image, kToolSize), CommandSet::Tip(name));
  }
  bar->Realize();
  platform::ApplyDirectionInside(*bar);
  if (!shown) Show(false);
}

std::vector<WantedImage> MainToolBar::Images() {
  std::vector<WantedImage> images;
  for (const auto& tool : kTools)
    if (*tool.image) images.push_back({tool.image, kToolSize});
  return images;
}

void MainToolBar::Update(const SelectionState& selection) {
  auto* bar = frame_.GetToolBar();
  if (!bar) return;
  for (const auto& tool : kTools)
    if (const auto* command = commands_.Find(tool.command)) {
      const bool enabled = CommandSet::Enabled(*command, selection);
      const int id = CommandSet::Id(tool.command);
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
