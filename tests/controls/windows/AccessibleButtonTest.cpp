#include <windows.h>
#include <oleacc.h>

#include "tests/controls/buttons/ButtonFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

/// What a screen reader is told, over the system's own interface.
class AccessibleButtonTest : public ButtonFixture {
 protected:
  void SetUp() override {
    ButtonFixture::SetUp();
    button_->SetCaption("&Save && exit");
    ASSERT_EQ(AccessibleObjectFromWindow(reinterpret_cast<HWND>(button_->GetHandle()),
                                         static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                         reinterpret_cast<void**>(&accessible_)),
              S_OK);
    self_.vt = VT_I4;
    self_.lVal = CHILDID_SELF;
  }
  void TearDown() override {
    if (accessible_) accessible_->Release();
    ButtonFixture::TearDown();
  }

  std::wstring Text(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, BSTR*)) {
    BSTR text = nullptr;
    EXPECT_EQ((accessible_->*get)(self_, &text), S_OK);
    std::wstring copy = text ? text : L"";
    SysFreeString(text);
    return copy;
  }
  long Number(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, VARIANT*)) {
    VARIANT number{};
    EXPECT_EQ((accessible_->*get)(self_, &number), S_OK);
    return number.lVal;
  }
  long State() { return Number(&IAccessible::get_accState); }

  IAccessible* accessible_ = nullptr;
  VARIANT self_{};
};

TEST_F(AccessibleButtonTest, IsReadAsAPushButton) {
  EXPECT_EQ(Number(&IAccessible::get_accRole), ROLE_SYSTEM_PUSHBUTTON);
  EXPECT_EQ(Text(&IAccessible::get_accName), L"Save & exit");
  EXPECT_EQ(Text(&IAccessible::get_accKeyboardShortcut), L"Alt+S");
  EXPECT_EQ(Text(&IAccessible::get_accDefaultAction), L"Press");
}

TEST_F(AccessibleButtonTest, ItsStateIsTheButtons) {
  EXPECT_EQ(State(), STATE_SYSTEM_FOCUSABLE);
  button_->SetDefault();
  button_->SetFocus();
  WaitFor([this] { return button_->HasFocus(); }, "the focus");
  EXPECT_EQ(State(), STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_FOCUSED | STATE_SYSTEM_DEFAULT);
  PointAtButton();
  LogUntil("MouseEnter 0");
  simulator_.MouseDown();
  LogUntil("MouseDown 1 0");
  EXPECT_EQ(State() & (STATE_SYSTEM_PRESSED | STATE_SYSTEM_HOTTRACKED),
            STATE_SYSTEM_PRESSED | STATE_SYSTEM_HOTTRACKED);
  simulator_.MouseUp();
  LogUntil("MouseUp 1 0");
  button_->Disable();
  EXPECT_TRUE(State() & STATE_SYSTEM_UNAVAILABLE);
  button_->Hide();
  EXPECT_TRUE(State() & STATE_SYSTEM_INVISIBLE);
}

TEST_F(AccessibleButtonTest, ItsActionClicks) {
  EXPECT_EQ(accessible_->accDoDefaultAction(self_), S_OK);
  EXPECT_EQ(Told(), Log{}) << "the screen reader does not wait for what the click does";
  EXPECT_THAT(LogUntil("Click"), testing::ElementsAre("Click"));
}

}  // namespace mindloft::test
