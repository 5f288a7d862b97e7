#include "tests/controls/explorer/ExplorerFixture.h"

#include "controls/explorer/ExplorerLists.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

void ExplorerFixture::SetUp() {
  PrivateServices::SetUp();
  frame_ = new wxFrame(nullptr, wxID_ANY, "explorer", wxDefaultPosition, wxSize(800, 500));
  explorer_ = new ctExplorer(frame_, "ctMainForm");
  SpecifyBreakChar(*explorer_);
  user_ = std::make_unique<User>(*frame_);
  rows_ = std::make_shared<FakeRows>(kRows);
  AddColumn(*explorer_, "Name", 150);
  AddColumn(*explorer_, "Second", 150);
  AddColumn(*explorer_, "", 20);
  explorer_->SetRows(rows_);
  explorer_->lvSelChange = [this] { ++selectionChanges_; };
  explorer_->lvCountChange = [this] { ++countChanges_; };
  frame_->Show();
  WaitFor([this] { return List().GetCountPerPage() > 5; }, "the list on the screen");
  explorer_->FocusList();
  Settle();
}

void ExplorerFixture::TearDown() {
  user_.reset();
  frame_->Destroy();
  Settle();
  PrivateServices::TearDown();
}

void ExplorerFixture::Type(const wxString& text) {
  for (const wxUniChar each : text) Press(static_cast<int>(each.GetValue()));
}

void ExplorerFixture::ClickRow(long row, int modifiers, wxEventType type) {
  wxRect rect;
  ASSERT_TRUE(List().GetItemRect(row, rect));
  // Where the toolkit draws the list itself, the rows have a window below that of the headings.
  wxWindow* drawn = nullptr;
  for (wxWindow* child : List().GetChildren())
    if (child->GetPosition().y > 0) drawn = child;
  wxWindow& window = drawn ? *drawn : List();
  wxMouseEvent event(type);
  event.SetEventObject(&window);
  const wxPoint origin = drawn ? drawn->GetPosition() : wxPoint();
  event.SetPosition(rect.GetTopLeft() + wxPoint(30, rect.height / 2) - origin);
  event.SetControlDown((modifiers & wxMOD_CONTROL) != 0);
  event.SetShiftDown((modifiers & wxMOD_SHIFT) != 0);
  window.HandleWindowEvent(event);
}

void ExplorerFixture::ClickHeading(int column) {
  wxListEvent event(wxEVT_LIST_COL_CLICK, List().GetId());
  event.SetEventObject(&List());
  event.m_col = column;
  List().HandleWindowEvent(event);
}

wxString ExplorerFixture::FocusedName() const {
  const std::int64_t row = explorer_->FocusedListRow();
  return row < 0 ? wxString() : explorer_->ListRow(row).key.Mid(1);
}

std::vector<wxString> ExplorerFixture::SelectedKeys() const {
  std::vector<wxString> keys;
  for (const ExplorerRow& row : explorer_->SelectedListRows()) keys.push_back(row.key);
  return keys;
}

}  // namespace mindloft::test
