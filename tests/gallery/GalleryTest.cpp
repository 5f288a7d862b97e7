#include <gtest/gtest.h>
#include <wx/panel.h>

#include "gallery/PageSetupPart.h"
#include "gallery/RichTextPart.h"
#include "gallery/StylesPart.h"
#include "gallery/frmControls.h"
#include "gallery/frmOnePart.h"
#include "tests/support/gui/PrivateServices.h"
#include "tests/support/gui/User.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

class GalleryTest : public PrivateServices {};

/// Every control that is shown lies wholly inside what surrounds it.
void ExpectInside(const wxWindow& window) {
  for (const wxWindow* child : window.GetChildren()) {
    if (!child->IsShown() || child->IsTopLevel()) continue;
    const wxRect room(wxPoint(), window.GetVirtualSize());
    EXPECT_TRUE(room.Contains(child->GetRect()))
        << child->GetName() << " in " << window.GetName() << ": " << child->GetRect().GetRight() << ", "
        << child->GetRect().GetBottom() << " of " << room.width << ", " << room.height;
    if (dynamic_cast<const wxPanel*>(child)) ExpectInside(*child);
  }
}

TEST_F(GalleryTest, ShowsAllOnOnePageInEveryLanguage) {
  for (const int language : GetResource().Languages()) {
    ASSERT_TRUE(GetResource().SwitchLanguage(language));
    auto* form = new frmControls;
    form->Show();
    const wxWindow& page = *User(*form).Find<wxPanel>("TextsPart").GetParent();
    WaitFor([&] { return form->GetClientSize() == page.GetBestSize(); }, "the form to fit its page");
    Settle();
    EXPECT_LE(form->GetSize().x, 1280) << language;
    EXPECT_LE(form->GetSize().y, 1000) << language;
    for (const char* part : {"NumbersPart", "TextsPart", "ButtonsPart"})
      ExpectInside(User(*form).Find<wxPanel>(part));
    form->Destroy();
    Settle();
  }
}

/// Shows the page of that part in every language.
template <typename Part>
void ExpectShown(const char* name) {
  SCOPED_TRACE(name);
  for (const int language : GetResource().Languages()) {
    ASSERT_TRUE(GetResource().SwitchLanguage(language));
    auto* form = PageOf<Part>();
    form->Show();
    const auto& part = User(*form).Find<wxPanel>(name);
    WaitFor([&] { return part.IsShownOnScreen() && part.GetSize().x > 0; }, "the controls on the screen");
    Settle();
    EXPECT_LE(form->GetSize().x, 1280) << language;
    EXPECT_LE(form->GetSize().y, 1000) << language;
    ExpectInside(part);
    form->Destroy();
    Settle();
  }
}

TEST_F(GalleryTest, ShowsThePagesOfTheirOwnInEveryLanguage) {
  ExpectShown<RichTextPart>("RichTextPart");
  ExpectShown<PageSetupPart>("PageSetupPart");
  ExpectShown<StylesPart>("StylesPart");
}

}  // namespace
}  // namespace mindloft::test
