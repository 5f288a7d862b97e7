#include "gallery/PageSetupPart.h"

#include <wx/button.h>

#include "controls/print/UserPrintSetup.h"

namespace mindloft {

PageSetupPart::PageSetupPart(wxWindow* parent, Tell tell)
    : GalleryPart(parent, "PageSetupPart", std::move(tell)) {
  auto* setup = Find<UserPrintSetup>("PrintSetup");
  setup->LoadInfoOnControl();
  PageSettings page;
  page.leftMargin = 350;
  setup->Load(page);
  Find<wxButton>("cmdValidate")->Bind(wxEVT_BUTTON, [this, setup](wxCommandEvent&) {
    TellEvent("PrintSetup", "ValidateMargin", setup->ValidateMargin() ? "True" : "False");
  });
}

}  // namespace mindloft
