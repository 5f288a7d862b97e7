#include "tests/controls/richtext/RichTextFixture.h"

#include <wx/sizer.h>

#include <algorithm>
#include <utility>

#include "controls/richtext/TableEditing.h"
#include "tests/support/gui/Keyboard.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

void RichTextFixture::SetUp() {
  PrivateServices::SetUp();
  frame_ = new wxFrame(nullptr, wxID_ANY, "rich text", wxDefaultPosition, wxSize(900, 600),
                       wxDEFAULT_FRAME_STYLE, "frmLogin");
  user_ = std::make_unique<User>(*frame_);
}

void RichTextFixture::TearDown() {
  user_.reset();
  frame_->Destroy();
  Settle();
  PrivateServices::TearDown();
}

void RichTextFixture::Place(RichTextControl& control) {
  control_ = &control;
  control.Change = [this] { events_.push_back("Change"); };
  control.PosChange = [this] { events_.push_back("PosChange"); };
  control.KeyUp = [this](int& key, int shift) {
    events_.push_back("KeyUp " + std::to_string(key) + "," + std::to_string(shift));
  };
  control.MouseUp = [this](int button, int, int, int) {
    events_.push_back("MouseUp " + std::to_string(button));
  };
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(&control, wxSizerFlags(1).Expand());
  frame_->SetSizer(sizer);
  frame_->Show();
  WaitFor([&] { return frame_->IsShownOnScreen() && control.GetSize().x > 300; },
          "the control on the screen");
  control.Editor().SetFocus();
  WaitFor([&] { return control.Editor().HasFocus(); }, "the focus in the editor");
  Settle();
  events_.clear();
}

void RichTextFixture::Type(const wxString& text) {
  for (const wxUniChar each : text)
    SendKey(control_->Editor(), each == '\n' ? WXK_RETURN : static_cast<int>(each.GetValue()));
  Settle();
}

void RichTextFixture::Press(int key, int modifiers) {
  SendKey(control_->Editor(), key, modifiers);
  Settle();
}

void RichTextFixture::PutLetters(int rows, int columns) {
  RichEditor& editor = control_->Editor();
  PutTable(editor, rows, columns);
  wxRichTextTable* table = CaretCell(editor).table;
  ASSERT_TRUE(table);
  for (int i = 0; i < rows * columns; ++i) {
    editor.SetFocusObject(table->GetCell(i / columns, i % columns));
    editor.WriteText(wxString(static_cast<char>('a' + i)));
  }
  editor.SetFocusObject(table->GetCell(0, 0));
  Settle();
}

std::string RichTextFixture::Cells() {
  const wxRichTextTable* table = CaretCell(control_->Editor()).table;
  if (!table) return "no table";
  std::string text;
  for (int row = 0; row < table->GetRowCount(); ++row) {
    if (row > 0) text += '|';
    for (int column = 0; column < table->GetColumnCount(); ++column) {
      std::string cell = table->GetCell(row, column)->GetText().utf8_string();
      cell.erase(std::remove(cell.begin(), cell.end(), '\n'), cell.end());
      text += cell.empty() ? "." : cell;
    }
  }
  return text;
}

void RichTextFixture::ExpectUndoable(const std::string& before) {
  const std::string after = Stored();
  EXPECT_NE(after, before) << "nothing was changed";
  control_->Undo();
  Settle();
  EXPECT_EQ(Stored(), before);
  control_->Redo();
  Settle();
  EXPECT_EQ(Stored(), after);
}

std::vector<std::string> RichTextFixture::Events() {
  Settle();
  return std::exchange(events_, {});
}

}  // namespace mindloft::test
