#include "mainwindow/objects/ObjectMenu.h"

#include <map>

#include "mainwindow/DomainContexts.h"
#include "mainwindow/SelectionReader.h"
#include "mainwindow/TreeKeys.h"
#include "mainwindow/objects/ObjectCommands.h"

namespace mindloft {

void ObjectMenu::mnuFileNew_Click() {
  const auto selection = selection_.Read();
  if (!selection.listed) return;
  if (selection.listed->inDomain)
    NewInDomain(selection.listed->key);
  else
    commands_.NewObject(selection.listed->key, {}, 0);
}

void ObjectMenu::mnuFileDelete_Click() {
  commands_.DeleteObject();
}

void ObjectMenu::mnuFileProperties_Click() {
  if (const auto* target = selection_.Read().target) Properties(target->key);
}

void ObjectMenu::mnuDomainaddNew_Click() {
  commands_.NewObject(keys::kDomains, {}, 0);
}
void ObjectMenu::mnuUseraddNew_Click() {
  commands_.NewObject(keys::kUsers, {}, 0);
}
void ObjectMenu::mnuGroupaddNew_Click() {
  NewInDomain(keys::kDomainGroups);
}
void ObjectMenu::mnuDUseraddNew_Click() {
  NewInDomain(keys::kDomainUsers);
}

// These items are enabled only when what is selected is of their kind.
void ObjectMenu::mnuDomainDelete_Click() {
  commands_.DeleteObject();
}
void ObjectMenu::mnuUserDelete_Click() {
  commands_.DeleteObject();
}
void ObjectMenu::mnuGroupDelete_Click() {
  commands_.DeleteObject();
}
void ObjectMenu::mnuDUserDelete_Click() {
  commands_.DeleteObject();
}

void ObjectMenu::mnuDomainProperties_Click() {
  Properties(keys::kDomains);
}
void ObjectMenu::mnuUserProperties_Click() {
  Properties(keys::kUsers);
}
void ObjectMenu::mnuRoleProperties_Click() {
  Properties(keys::kRoles);
}
void ObjectMenu::mnuGroupProperties_Click() {
  Properties(keys::kDomainGroups);
}
void ObjectMenu::mnuDUserProperties_Click() {
  Properties(keys::kDomainUsers);
}

std::function<void()> ObjectMenu::Handler(const wxString& name) {
  using Menu = ObjectMenu;
  static const std::map<wxString, void (Menu::*)()> handlers = {
      {"mnuFileNew", &Menu::mnuFileNew_Click},
      {"mnuFileDelete", &Menu::mnuFileDelete_Click},
      {"mnuFileProperties", &Menu::mnuFileProperties_Click},
      {"mnuDomainaddNew", &Menu::mnuDomainaddNew_Click},
      {"mnuUseraddNew", &Menu::mnuUseraddNew_Click},
      {"mnuGroupaddNew", &Menu::mnuGroupaddNew_Click},
      {"mnuDUseraddNew", &Menu::mnuDUseraddNew_Click},
      {"mnuDomainDelete", &Menu::mnuDomainDelete_Click},
      {"mnuUserDelete", &Menu::mnuUserDelete_Click},
      {"mnuGroupDelete", &Menu::mnuGroupDelete_Click},
      {"mnuDUserDelete", &Menu::mnuDUserDelete_Click},
      {"mnuDomainProperties", &Menu::mnuDomainProperties_Click},
      {"mnuUserProperties", &Menu::mnuUserProperties_Click},
      {"mnuRoleProperties", &Menu::mnuRoleProperties_Click},
      {"mnuGroupProperties", &Menu::mnuGroupProperties_Click},
      {"mnuDUserProperties", &Menu::mnuDUserProperties_Click},
  };
  const auto found = handlers.find(name);
  if (found == handlers.end()) return {};
  return [this, handler = found->second] { (this->*handler)(); };
}

void ObjectMenu::NewInDomain(const wxString& kind) {
  if (const auto domain = selection_.Read().scope.domain)
    commands_.NewObject(kind, DomainContexts::KeyOf(*domain), 0);
}

void ObjectMenu::Properties(const wxString& kind) {
  const auto keys = selection_.Keys();
  if (!keys.empty()) commands_.SetProperty(kind, keys.front());
}

}  // namespace mindloft
