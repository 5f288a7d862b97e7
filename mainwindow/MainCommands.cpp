#include "mainwindow/MainCommands.h"

#include <wx/combobox.h>
#include <wx/textctrl.h>

#include "backend/directory/Privileges.h"
#include "backend/tessaline/Services.h"
#include "config/frmConfiguration.h"
#include "config/frmURL.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/print/frmPageSetup.h"
#include "core/modShare.h"
#include "editors/styles/frmStyles.h"
#include "mainwindow/ApplicationServices.h"
#include "mainwindow/CommandSet.h"
#include "mainwindow/MainStatusBar.h"
#include "mainwindow/MainToolBar.h"
#include "mainwindow/Texts.h"
#include "mainwindow/frmSysAdmin.h"

namespace mindloft {

namespace {

using Tessaline::Buttons;
using Tessaline::MessageKind;

/// Ctrl+A belongs to the text that has the focus, if one has.
void SelectAll(frmSysAdmin& form) {
  if (auto* text = dynamic_cast<wxTextEntry*>(wxWindow::FindFocus()))
    text->SelectAll();
  else
    form.Explorer().SelectAllListRows();
}

void AskWorkingFolder(frmSysAdmin& form) {
  const wxString folder = GetApplicationServices().getWorkingFolder(true);
  GetMessenger().Ask(folder.empty() ? texts::kNoWorkingFolder : texts::kWorkingFolderIs,
                     Tessaline::kInformationTitle, Buttons::OK, MessageKind::Information, {folder}, &form);
}

void About(frmSysAdmin& form) {
  GetMessenger().Ask(texts::kAbout, texts::kAboutTitle, Buttons::OK, MessageKind::Information,
                     {MINDLOFT_VERSION}, &form);
}

void AddViewCommands(CommandSet& commands, frmSysAdmin& form) {
  commands.Add({.name = "mnuViewRefresh", .shortcut = "F5", .run = [&form] { form.RefreshAll(); }});
  commands.Add({.name = "mnuViewSortDescending",
                .shortcut = {},
                .run =
                    [&form] {
                      auto& explorer = form.Explorer();
                      if (explorer.SortColumn() >= 0)
                        explorer.SortBy(explorer.SortColumn(), !explorer.SortDescending());
                    },
                .enabled = [&form](const SelectionState&) { return form.Explorer().SortColumn() >= 0; },
                .checked = [&form] { return form.Explorer().SortDescending(); }});
  commands.Add({.name = "mnuViewToolbar",
                .shortcut = {},
                .run = [&form] { form.Tools().Show(!form.Tools().IsShown()); },
                .checked = [&form] { return form.Tools().IsShown(); }});
  commands.Add({.name = "mnuViewStatusBar",
                .shortcut = {},
                .run = [&form] { form.Status().Show(!form.Status().IsShown()); },
                .checked = [&form] { return form.Status().IsShown(); }});
  commands.Add({.name = "mnuViewFullScreen",
                .shortcut = "F11",
                .run = [&form] { form.ToggleFullScreen(); },
                .checked = [&form] { return form.IsFullScreen(); }});
}

void AddToolCommands(CommandSet& commands, frmSysAdmin& form) {
  commands.Add({.name = "mnuFilePrintSetup", .shortcut = {}, .run = [&form] {
                  auto page = LoadPageSettings();
                  AskForPage(form, page);
                }});
  commands.Add({.name = "mnuToolsConfiguration", .shortcut = {}, .run = [&form] {
                  frmConfiguration(&form).ShowModal();
                }});
  commands.Add({.name = "mnuToolsURL", .shortcut = {}, .run = [&form] {
                  frmURL(&form, frmURL::Purpose::KeepList).ShowModal();
                }});

  commands.Add({.name = "mnuToolsStyles",
                .shortcut = {},
                .run = [&form] { frmStyles(&form).OpenWindow(); },
                .enabled = [](const SelectionState&) { return CheckSysPrivilege(ManageStyles); }});
  commands.Add({.name = "mnuToolsWorkingFolder",
                .shortcut = {},
                .run = [&form] { AskWorkingFolder(form); },
                .enabled =
                    [](const SelectionState&) {
                      return static_cast<bool>(GetApplicationServices().getWorkingFolder);
                    }});
  commands.Add(
      {.name = "mnuHelpContents",
       .shortcut = "F1",
       .run = [] { GetApplicationServices().showHelp(); },
       .enabled =
           [](const SelectionState&) { return static_cast<bool>(GetApplicationServices().showHelp); }});
  commands.Add({.name = "mnuHelpAbout", .shortcut = {}, .run = [&form] { About(form); }});
}

}  // namespace

void AddMainCommands(CommandSet& commands, frmSysAdmin& form) {
  commands.Add({.name = "mnuFileExit", .shortcut = "Ctrl+Q", .run = [&form] { form.Close(); }});
  commands.Add({.name = "mnuEditSelectAll",
                .shortcut = "Ctrl+A",
                .run = [&form] { SelectAll(form); },
                .enabled = [](const SelectionState& selection) { return selection.rows > 0; }});
  commands.Add({.name = "mnuEditFind",
                .shortcut = "Ctrl+F",
                .run = [&form] { form.Explorer().FocusSearch(); },
                .enabled = [](const SelectionState& selection) { return !selection.nodeKey.empty(); }});
  AddViewCommands(commands, form);
  AddToolCommands(commands, form);
}

}  // namespace mindloft
