#include "mainwindow/MenuBuilder.h"

#include <wx/control.h>
#include <wx/frame.h>
#include <wx/menu.h>

#include <algorithm>

#include "backend/tessaline/Services.h"
#include "core/forms/Images.h"
#include "mainwindow/CommandSet.h"
#include "mainwindow/LanguageMenu.h"
#include "mainwindow/ObjectKindRegistry.h"

namespace mindloft {

namespace {

/// Only some desktops let a menu have a direction of its own; on the others it takes that of its window.
template <typename Menu>
void SetDirection(Menu& menu, wxLayoutDirection direction) {
  if constexpr (requires { menu.SetLayoutDirection(direction); }) menu.SetLayoutDirection(direction);
}

constexpr const char* kSeparator = "-";
constexpr const char* kNewOfKinds = "*new";  // one item for each kind that can be created
constexpr const char* kSortMenu = "mnuViewSort";
constexpr const char* kLanguageMenu = "mnuViewLanguage";

struct MenuLayout {
  const char* name;
  std::vector<wxString> items;
};

const std::vector<MenuLayout>& Layout() {
  static const std::vector<MenuLayout> layout = {
      {"mnuFile",
       {"mnuFileNew", kNewOfKinds, kSeparator, "mnuFileDelete", "mnuFileProperties", kSeparator,
        "mnuFilePrintSetup", kSeparator, "mnuFileExit"}},
      {"mnuEdit", {"mnuEditSelectAll", kSeparator, "mnuEditFind"}},
      {"mnuView",
       {"mnuViewRefresh", kSortMenu, kSeparator, "mnuViewToolbar", "mnuViewStatusBar", "mnuViewFullScreen",
        kSeparator, kLanguageMenu}},
      {"mnuTools",
       {"mnuToolsConfiguration", "mnuToolsURL", kSeparator, "mnuToolsStyles", "mnuToolsWorkingFolder"}},
      {"mnuHelp", {"mnuHelpContents", kSeparator, "mnuHelpAbout"}},
  };
  return layout;
}

}  // namespace

MenuBuilder::MenuBuilder(wxFrame& frame, const CommandSet& commands, const ObjectKindRegistry& kinds)
    : frame_(frame), commands_(commands), kinds_(kinds) {}

void MenuBuilder::BuildMenuBar() {
  auto bar = std::make_unique<wxMenuBar>();
  sortMenu_ = nullptr;
  languageMenu_ = nullptr;
  sortColumns_.clear();
  for (const auto& menu : Layout()) bar->Append(BuildMenu(menu.items), CommandSet::Caption(menu.name));
  // Where a menu bar is no window it takes the direction of its frame.
  if (bar->GetHandle()) bar->SetLayoutDirection(frame_.GetLayoutDirection());
  wxMenuBar* old = frame_.GetMenuBar();
  frame_.SetMenuBar(bar.release());
  delete old;
}

wxMenu* MenuBuilder::BuildMenu(const std::vector<wxString>& names) {
  auto menu = std::make_unique<wxMenu>();
  for (const auto& name : names) {
    if (name == kNewOfKinds) {
      for (const auto& command : NewCommands()) Append(*menu, command);
    } else if (name == kSortMenu) {
      sortMenu_ = new wxMenu;
      menu->AppendSubMenu(sortMenu_, CommandSet::Caption(name));
    } else if (name == kLanguageMenu) {
      languageMenu_ = new wxMenu;
      menu->AppendSubMenu(languageMenu_, CommandSet::Caption(name));
    } else {
      Append(*menu, name);
    }
  }
  return menu.release();
}

std::vector<wxString> MenuBuilder::NewCommands() const {
  std::vector<wxString> names;
  for (const auto& kind : kinds_.All())
    if (!kind.create.name.empty()) names.push_back(kind.create.name);
  return names;
}

void MenuBuilder::Append(wxMenu& menu, const wxString& name) const {
  if (name == kSeparator) {
    menu.AppendSeparator();
    return;
  }
  const auto* command = commands_.Find(name);
  if (!command) return;
  wxString text = CommandSet::Caption(name);
  if (!command->shortcut.empty()) text += "\t" + command->shortcut;
  menu.Append(CommandSet::Id(name), text, CommandSet::Tip(name),
              command->checked ? wxITEM_CHECK : wxITEM_NORMAL);
}

void MenuBuilder::ListLanguages() {
  if (!languageMenu_ || languageMenu_->GetMenuItemCount() > 0) return;
  for (const int code : GetResource().Languages()) {
    auto* item = languageMenu_->AppendRadioItem(LanguageMenu::ItemId(code),
                                                wxControl::EscapeMnemonics(GetResource().LanguageName(code)));
    if (code == GetResource().CurrentLanguage()) item->Check();
  }
}

std::unique_ptr<wxMenu> MenuBuilder::ContextMenu(const DirectoryKind* listed, const SelectionState& selection,
                                                 bool ofList) const {
  auto menu = std::make_unique<wxMenu>();
  const auto appendNamed = [&](const KindCommand& command) {
    if (!command.name.empty()) Append(*menu, command.name);
  };
  if (listed) appendNamed(listed->create);
  if (const auto* target = selection.target) {
    appendNamed(target->remove);
    appendNamed(target->edit);
  }
  if (menu->GetMenuItemCount() > 0) menu->AppendSeparator();
  if (ofList) Append(*menu, "mnuEditSelectAll");
  Append(*menu, "mnuViewRefresh");
  SetDirection(*menu, frame_.GetLayoutDirection());
  for (const auto& command : commands_.All())
    if (auto* item = menu->FindItem(CommandSet::Id(command.name)))
      item->Enable(CommandSet::Enabled(command, selection));
  return menu;
}

void MenuBuilder::Update(const SelectionState& selection) {
  const auto* bar = frame_.GetMenuBar();
  if (!bar) return;
  for (const auto& command : commands_.All()) {
    auto* item = bar->FindItem(CommandSet::Id(command.name));
    if (!item) continue;
    const bool enabled = CommandSet::Enabled(command, selection);
    if (item->IsEnabled() != enabled) item->Enable(enabled);
    if (command.checked) item->Check(command.checked());
  }
}

int MenuBuilder::SortItemId(int column) {
  return CommandSet::Id(wxString::Format("mnuViewSortColumn%d", column));
}

void MenuBuilder::ShowSortColumns(const std::vector<SortColumn>& columns, int current, bool descending) {
  if (!sortMenu_) return;
  const auto same = [](const SortColumn& a, const SortColumn& b) {
    return a.caption == b.caption && a.canSort == b.canSort;
  };
  if (sortMenu_->GetMenuItemCount() == 0 ||
      !std::equal(columns.begin(), columns.end(), sortColumns_.begin(), sortColumns_.end(), same)) {
    while (sortMenu_->GetMenuItemCount() > 0) sortMenu_->Destroy(sortMenu_->FindItemByPosition(0));
    sortColumns_ = columns;
    for (int column = 0; column < std::min<int>(static_cast<int>(columns.size()), kMostSortColumns);
         ++column) {
      const auto& shown = columns[static_cast<std::size_t>(column)];
      if (shown.caption.empty()) continue;
      sortMenu_->AppendCheckItem(SortItemId(column), wxControl::EscapeMnemonics(shown.caption))
          ->Enable(shown.canSort);
    }
    if (sortMenu_->GetMenuItemCount() > 0) sortMenu_->AppendSeparator();
    Append(*sortMenu_, "mnuViewSortDescending");
  }
  for (int column = 0; column < kMostSortColumns; ++column)
    if (auto* item = sortMenu_->FindItem(SortItemId(column))) item->Check(column == current);
  if (auto* item = sortMenu_->FindItem(CommandSet::Id("mnuViewSortDescending"))) item->Check(descending);
}

}  // namespace mindloft
