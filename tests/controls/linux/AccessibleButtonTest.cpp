#include <gtk/gtk.h>

#include "tests/controls/buttons/ButtonFixture.h"

namespace mindloft::test {

class AccessibleButtonTest : public ButtonFixture {};

TEST_F(AccessibleButtonTest, IsReadAsAPushButton) {
  AtkObject* accessible = gtk_widget_get_accessible(static_cast<GtkWidget*>(button_->GetHandle()));
  for (const char* caption : {"&Save && exit", "&Open"}) {
    button_->SetCaption(caption);
    EXPECT_STREQ(atk_object_get_name(accessible),
                 *caption == '&' && caption[1] == 'S' ? "Save & exit" : "Open");
  }
  EXPECT_EQ(atk_object_get_role(accessible), ATK_ROLE_PUSH_BUTTON);
}

}  // namespace mindloft::test
