#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/clrpicker.h>
#include <wx/combobox.h>
#include <wx/dialog.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include "controls/RegisterControls.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/numbers/UserTextNumber.h"
#include "controls/numbers/ucMaskedNumber.h"
#include "controls/richtext/TextControl.h"
#include "controls/texts/UseMultiLineTextBox.h"
#include "controls/texts/UseTextBox.h"
#include "controls/texts/UserText.h"
#include "tests/support/gui/PrivateServices.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

/// A dialog of labels, each before a control.
class LabelKeysTest : public PrivateServices {
 protected:
  void SetUp() override {
    PrivateServices::SetUp();
    RegisterControls();
    dialog_ = new wxDialog(nullptr, wxID_ANY, "labels");
    sizer_ = new wxFlexGridSizer(6, wxSize(8, 8));
  }
  void TearDown() override {
    dialog_->Destroy();
    Settle();
    PrivateServices::TearDown();
  }

  template <typename Control>
  Control& Add(const wxString& label, Control* (*make)(wxWindow* parent)) {
    sizer_->Add(new wxStaticText(dialog_, wxID_ANY, label));
    auto* control = make(dialog_);
    control->SetMinSize(wxSize(120, -1));
    sizer_->Add(control, wxSizerFlags().Expand());
    return *control;
  }
  void Show() {
    dialog_->SetSizerAndFit(sizer_);
    dialog_->Show();
    dialog_->Raise();
    WaitFor([this] { return dialog_->IsActive(); }, "the dialog in front");
    Settle();
  }
  void PressAlt(char letter) { wxUIActionSimulator().Char(letter, wxMOD_ALT); }
  static bool HasFocusInside(const wxWindow& control) {
    wxWindow* focus = wxWindow::FindFocus();
    return focus && (focus == &control || control.IsDescendant(focus));
  }

  wxDialog* dialog_ = nullptr;
  wxFlexGridSizer* sizer_ = nullptr;
};

template <typename Control>
Control* Make(wxWindow* parent) {
  return new Control(parent);
}
template <typename Control>
Control* MakeToolkits(wxWindow* parent) {
  return new Control(parent, wxID_ANY);
}

TEST_F(LabelKeysTest, LeadToControlsOfEveryKind) {
  Add<wxWindow>("no key", [](wxWindow* parent) -> wxWindow* { return new wxTextCtrl(parent, wxID_ANY); });
  const std::pair<char, wxWindow*> table[] = {
      {'A', &Add("&A", Make<UseTextBox>)},
      {'B', &Add("&B", Make<UseMultiLineTextBox>)},
      {'C', &Add("&C", Make<UserText>)},
      {'D', &Add("&D", Make<UserTextNumber>)},
      {'E', &Add("&E", Make<ucMaskedNumber>)},
      {'F', &Add("&F", Make<TextControl>)},
      {'G', &Add<ctExplorer>("&G", [](wxWindow* parent) { return new ctExplorer(parent, "list", false); })},
      {'H', &Add("&H", MakeToolkits<wxTextCtrl>)},
      {'I', &Add("&I", MakeToolkits<wxChoice>)},
      {'J', &Add("&J", MakeToolkits<wxComboBox>)},
      {'K', &Add("&K", MakeToolkits<wxSpinCtrl>)},
      {'L', &Add("&L", MakeToolkits<wxListBox>)},
      {'M', &Add("&M", MakeToolkits<wxColourPickerCtrl>)},
      {'N', &Add<wxWindow>("&N",
                           [](wxWindow* parent) -> wxWindow* {
                             return new wxTextCtrl(parent, wxID_ANY, {}, {}, {}, wxTE_MULTILINE);
                           })},
  };
  Show();
  // Each way: from before it and from behind it.
  for (const bool back : {false, true}) {
    for (std::size_t at = 0; at < std::size(table); ++at) {
      const auto& [letter, control] = table[back ? std::size(table) - 1 - at : at];
      PressAlt(letter);
      WaitFor([&, control = control] { return HasFocusInside(*control); },
              std::string("the control behind ") + letter);
    }
  }
}

TEST_F(LabelKeysTest, PassWhatCannotBeUsedAndLeaveButtonsTheirKeys) {
  auto& refused = Add("&A", Make<UseTextBox>);
  auto& hidden = Add("&B", Make<UseTextBox>);
  auto& usable = Add("&C", Make<UseTextBox>);
  auto& other = Add("&D", Make<UseTextBox>);
  auto* button = new wxButton(dialog_, wxID_ANY, "&Run");
  bool ran = false;
  button->Bind(wxEVT_BUTTON, [&](wxCommandEvent&) { ran = true; });
  sizer_->Add(button);
  Show();
  refused.SetEnabled(false);
  hidden.Hide();
  for (const char letter : {'A', 'D', 'B', 'D', 'C'}) {
    PressAlt(letter);
    auto& expected = letter == 'D' ? other : usable;
    WaitFor([&] { return HasFocusInside(expected); }, std::string("the control behind ") + letter);
  }
  PressAlt('R');
  WaitFor([&] { return ran; }, "the button");
}

}  // namespace mindloft::test
