#include "tests/mainwindow/MainWindowTest.h"

#include <wx/menu.h>
#include <wx/menuitem.h>

#include "backend/directory/Privileges.h"
#include "backend/directory/SqliteDirectory.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "mainwindow/ApplicationServices.h"
#include "mainwindow/CommandLineState.h"
#include "mainwindow/CommandSet.h"
#include "mainwindow/DirectoryTree.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

void MainWindowTest::SetUp() {
  PrivateServices::SetUp();
  MakeDirectory();
}

void MainWindowTest::TearDown() {
  if (form_) CloseWindow();
  SavedCommandLine().clear();
  GetApplicationServices() = {};
  SetApplication(nullptr);
  PrivateServices::TearDown();
}

void MainWindowTest::MakeDirectory() {
  SqliteDirectory::Create(file_, {"admin", kPassword});
  SetApplication(std::make_unique<Corvane::Application>(Corvane::EmbeddedDirectoryProvider(file_)));
  const auto connection = GetConnection();
  connection->SetConnectMode(1);
  ASSERT_TRUE(connection->Login("admin", kPassword));
  std::string ids;
  for (const char* name : {"back\\slash", "\"quoted\" & 'more'", "عمر", "smile \U0001F600", "plain"}) {
    const auto user = Server().Users()->Add();
    user->SetName(name);
    user->SetFullName(std::string("Full ") + name);
    user->SetDescription("d");
    user->SetPassword(kPassword);
    user->Update();
    if (ids.empty()) ids = user->Id();
  }
  for (const char* name : {"Alpha", "Beta"}) {
    const auto domain = Server().KDomains()->Add();
    domain->SetName(name);
    domain->SetDescription(std::string("about ") + name);
    domain->SetDisabled(name == std::string("Beta"));
    domain->Update();
    if (name == std::string("Alpha")) {
      domain->ChangeUsers(ids, "");
      const auto group = domain->DGroups()->Add();
      group->SetName("Readers");
      group->Update();
    }
  }
  connection->Logout();
}

void MainWindowTest::Open(const std::string& user, bool startWithNode) {
  ASSERT_TRUE(GetConnection()->Login(user, kPassword));
  form_ = new frmSysAdmin;
  form_->Load(GetConnection(), startWithNode);
  form_->Show();
  Settle();
}

bool MainWindowTest::CloseWindow() {
  if (!form_->Close()) return false;
  form_ = nullptr;
  Settle();
  return true;
}

int MainWindowTest::Node(const std::vector<wxString>& path) {
  int node = -1;
  for (const auto& key : path) {
    node = form_->Tree().Child(node, key);
    if (node < 0) return -1;
  }
  return node;
}

void MainWindowTest::Select(const std::vector<wxString>& path) {
  const int node = Node(path);
  ASSERT_GE(node, 0);
  Explorer().SelectTreeNode(node);
  Settle();
}

std::vector<wxString> MainWindowTest::Rows() {
  std::vector<wxString> rows;
  for (std::int64_t row = 0; row < Explorer().ListCount(); ++row) {
    wxString fields = Explorer().ListRow(row).fields;
    fields.Replace(wxString(wxUniChar(1)), "|");
    rows.push_back(fields);
  }
  return rows;
}

wxString MainWindowTest::Status(int field) {
  return form_->GetStatusBar()->GetStatusText(field);
}

wxString MainWindowTest::MenuText(const wxString& name) {
  const auto* item = form_->GetMenuBar()->FindItem(CommandSet::Id(name));
  return item ? item->GetItemLabelText() : wxString();
}

bool MainWindowTest::IsEnabled(const wxString& name) {
  const auto* item = form_->GetMenuBar()->FindItem(CommandSet::Id(name));
  return item && item->IsEnabled();
}

wxString MainWindowTest::DomainKey(const std::string& name) {
  for (const auto& record : Server().KDomains()->View().Page(0, 10))
    if (record.name == name) return ToWx(Corvane::IdText(record.id));
  return {};
}

Corvane::Server& MainWindowTest::Server() {
  return *GetApplication()->Server();
}

}  // namespace mindloft::test
