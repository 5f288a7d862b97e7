#include "controls/texts/FramedTextBox.h"

#include "backend/tessaline/Services.h"
#include "controls/LabelBefore.h"
#include "controls/texts/FrameLayer.h"
#include "core/ErrorHandling.h"
#include "platform/ui/CommonControls.h"
#include "platform/ui/TextBox.h"
#include "platform/ui/VisualStyle.h"

namespace mindloft {

FramedTextBox::~FramedTextBox() = default;

void FramedTextBox::CreateLayers(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size,
                                 long style, const wxString& name, long boxStyle) {
  platform::UseSystemControls();
  boxStyle_ = boxStyle;
  Create(parent, id, position, size, style | wxTAB_TRAVERSAL, name);
  const auto look = [this] { return Look(); };
  txtBackGround = new FrameLayer(this, "txtBackGround", nullptr, look);
  picBackGround = new FrameLayer(txtBackGround, "picBackGround", txtBackGround, look);
  MyText = AddBox("MyText", boxStyle);
  ApplyColours();
  // Laid out for the first time at a size that holds the box: some desktops complain of less.
  SetInitialSize(size);
  UserControl_Resize();
  BindLook();
}

EditBox* FramedTextBox::AddBox(const wxString& name, long boxStyle) {
  auto* box = new EditBox(picBackGround, name, boxStyle, *this, *this, className_);
  platform::PutInsideFrame(*box, TwipsToPixels(wxRect(0, 0, TextLayersEdge(), 0), *this).width);
  // The label may change with the language.
  platform::SetAccessibleName(*box, [this] {
    const wxString label = LabelBefore(*this);
    return label.empty() ? GetLabel() : label;
  });
  for (const auto& type : {wxEVT_SET_FOCUS, wxEVT_KILL_FOCUS}) {
    box->Bind(type, [this](wxFocusEvent& event) {
      event.Skip();
      if (!IsBeingDeleted()) RefreshFrame();
    });
  }
  boxes_.push_back(box);
  return box;
}

wxWindowList FramedTextBox::GetCompositeWindowParts() const {
  wxWindowList parts;
  ForEachBox([&](EditBox& box) { parts.push_back(&box); });
  return parts;
}

void FramedTextBox::RaiseFor(const char* procedure) const {
  mindloft::Raise(className_, procedure);
}

void FramedTextBox::SetIsNumber(bool isNumber) {
  SetProperty("IsNumber", [&] {
    isNumber_ = isNumber;
    ForEachBox([&](EditBox& box) { box.SetIsNumber(isNumber); });
  });
}

void FramedTextBox::SetHas3D(bool has3D) {
  SetProperty("Has3D", [&] {
    has3D_ = has3D;
    UserControl_Resize();
  });
}

wxString FramedTextBox::Text() const {
  return ActiveBox().GetValue();
}

void FramedTextBox::SetText(const wxString& text) {
  SetProperty("Text", [&] { ActiveBox().PutText(text); });
}

void FramedTextBox::SetBackColor(ControlColour colour) {
  SetProperty("BackColor", [&] {
    backColor_ = colour;
    ApplyColours();
  });
}

ControlColour FramedTextBox::ForeColor() const {
  return foreColor_;
}

void FramedTextBox::SetForeColor(ControlColour colour) try {
  foreColor_ = colour;
  ApplyColours();
} catch (...) {
  RaiseFor("ForeColor");
}

void FramedTextBox::SetEnabled(bool enabled) {
  SetProperty("Enabled", [&] { Enable(enabled); });
}

void FramedTextBox::SetLocked(bool locked) {
  SetProperty("Locked", [&] {
    isLocked_ = locked;
    ForEachBox([&](EditBox& box) { box.SetEditable(!locked); });
    ApplyColours();
  });
}

void FramedTextBox::SetMaxLength(std::int16_t characters) {
  SetProperty("MaxLength", [&] {
    if (characters < 0) throw Error(ErrorNumber::Overflow, "a length cannot be negative");
    maxLength_ = characters;
    ForEachBox([&](EditBox& box) { box.SetMaxCharacters(characters); });
  });
}

long FramedTextBox::SelStart() const {
  return ActiveBox().SelectionStart();
}

void FramedTextBox::SetSelStart(long place) try { ActiveBox().SelectText(place, 0); } catch (...) {
  RaiseFor("SelStart");
}

long FramedTextBox::Sellength() const {
  return ActiveBox().SelectionLength();
}

void FramedTextBox::SetSellength(long length) try {
  ActiveBox().SelectText(ActiveBox().SelectionStart(), length);
} catch (...) {
  RaiseFor("Sellength");
}

wxString FramedTextBox::SelText() const {
  return Text().Mid(static_cast<std::size_t>(SelStart()), static_cast<std::size_t>(Sellength()));
}

void FramedTextBox::SetSelText(const wxString& text) try { ActiveBox().PutSelection(text); } catch (...) {
  RaiseFor("SelText");
}

void FramedTextBox::LoadInfoOnControl() try { GetResource().LoadInfoOnControl(*this); } catch (...) {
  RaiseFor("LoadInfoOnControl");
}

void FramedTextBox::SetLabel(const wxString& caption) {
  wxPanel::SetLabel(caption);
  ForEachBox([&](EditBox& box) { box.SetHint(caption); });
}

}  // namespace mindloft
