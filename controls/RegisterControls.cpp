#include "controls/RegisterControls.h"

#include <wx/xrc/xh_clrpicker.h>
#include <wx/xrc/xh_spin.h>

#include "controls/bag/BagXmlHandler.h"
#include "controls/buttons/MyButton.h"
#include "controls/buttons/UserLine.h"
#include "controls/buttons/useDefaultButton.h"
#include "controls/explorer/ExplorerXmlHandler.h"
#include "controls/numbers/UserTextNumber.h"
#include "controls/numbers/ucMaskedNumber.h"
#include "controls/print/PagePicture.h"
#include "controls/print/UserPrintSetup.h"
#include "controls/richtext/TXControl.h"
#include "controls/richtext/TextControl.h"
#include "controls/styles/UserPreview.h"
#include "controls/texts/UseMultiLineTextBox.h"
#include "controls/texts/UseTextBox.h"
#include "controls/texts/UserText.h"
#include "core/forms/Form.h"

namespace mindloft {

void RegisterControls() {
  static const bool registered = [] {
    RegisterFormHandler(new ExplorerXmlHandler);
    RegisterFormHandler(new BagXmlHandler<MyButton>("MyButton"));
    RegisterFormHandler(new BagXmlHandler<useDefaultButton>("useDefaultButton"));
    RegisterFormHandler(new BagXmlHandler<UserLine>("UserLine"));
    RegisterFormHandler(new BagXmlHandler<UserTextNumber>("UserTextNumber"));
    RegisterFormHandler(new BagXmlHandler<ucMaskedNumber>("ucMaskedNumber"));
    RegisterFormHandler(new BagXmlHandler<UseTextBox>("UseTextBox"));
    RegisterFormHandler(new BagXmlHandler<UseMultiLineTextBox>("UseMultiLineTextBox"));
    RegisterFormHandler(new BagXmlHandler<UserText>("UserText"));
    RegisterFormHandler(new BagXmlHandler<PagePicture>("PagePicture"));
    RegisterFormHandler(new BagXmlHandler<UserPrintSetup>("UserPrintSetup"));
    RegisterFormHandler(new BagXmlHandler<UserPreview>("UserPreview"));
    RegisterFormHandler(new BagXmlHandler<TXControl>("TXControl"));
    RegisterFormHandler(new BagXmlHandler<TextControl>("TextControl"));
    // Of the toolkit's, for the dialogs of formats.
    RegisterFormHandler(new wxColourPickerCtrlXmlHandler);
    RegisterFormHandler(new wxSpinCtrlDoubleXmlHandler);
    return true;
  }();
  static_cast<void>(registered);
}

wxWindow* WithControls(wxWindow* parent) {
  RegisterControls();
  return parent;
}

}  // namespace mindloft
