#pragma once

#include <wx/compositewin.h>
#include <wx/panel.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "controls/bag/BagControl.h"
#include "controls/bag/ControlColour.h"
#include "controls/texts/EditBox.h"
#include "controls/texts/TextBoxEvents.h"
#include "controls/texts/TextLayers.h"
#include "platform/ui/VisualStyle.h"

namespace mindloft {

class FrameLayer;
struct FrameLook;

/// What the text boxes with a frame share: the layers `txtBackGround`, `picBackGround` and, inside them, the
/// editing box `MyText`; their looks, and the properties of all.
class FramedTextBox : public wxCompositeWindowSettersOnly<wxPanel>,
                      public KeepsProperties,
                      public TextBoxEvents {
 public:
  ~FramedTextBox() override;

  bool IsNumber() const { return isNumber_; }
  void SetIsNumber(bool isNumber);
  bool Has3D() const { return has3D_; }
  void SetHas3D(bool has3D);
  /// The content; as long as it may be, the rest is cut off.
  wxString Text() const;
  void SetText(const wxString& text);
  ControlColour BackColor() const { return backColor_; }
  void SetBackColor(ControlColour colour);
  ControlColour ForeColor() const;
  void SetForeColor(ControlColour colour);
  bool Enabled() const { return IsThisEnabled(); }
  void SetEnabled(bool enabled);
  bool Locked() const { return isLocked_; }
  void SetLocked(bool locked);
  /// Characters; 0: no limit but the desktop's own (GTK: 64 KiB in one line). Throws Overflow for a negative
  /// one.
  std::int16_t MaxLength() const { return maxLength_; }
  void SetMaxLength(std::int16_t characters);
  // Places past the end become the end.
  long SelStart() const;
  void SetSelStart(long place);
  long Sellength() const;
  void SetSellength(long length);
  wxString SelText() const;
  /// Replaces the selection, as if it had been typed.
  void SetSelText(const wxString& text);

  /// Takes the caption for this control of its form anew: shown in the box while it is empty.
  void LoadInfoOnControl();
  void SetLabel(const wxString& caption) override;

 protected:
  /// `className` is the control's in error reports.
  explicit FramedTextBox(const char* className) : className_(className) {}
  /// `boxStyle` is that of `MyText`.
  void CreateLayers(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size, long style,
                    const wxString& name, long boxStyle);
  /// A further editing box at the place of the others.
  EditBox* AddBox(const wxString& name, long boxStyle);
  void PlaceLayers();
  /// The one in which the user edits.
  virtual EditBox& ActiveBox() const { return *MyText; }
  template <typename Action>
  void ForEachBox(Action action) const {
    for (EditBox* box : boxes_) action(*box);
  }
  /// Runs a property's procedure and records the change of a kept one; its errors are reported and thrown on.
  template <typename Procedure>
  void SetProperty(const char* property, Procedure procedure) {
    try {
      procedure();
      PropertyChanged();
    } catch (...) {
      RaiseFor(property);
    }
  }
  wxSize DoGetBestClientSize() const override;
  void DoEnable(bool enable) override;
  wxWindowList GetCompositeWindowParts() const override;

  EditBox* MyText = nullptr;

 private:
  [[noreturn]] void RaiseFor(const char* procedure) const;
  void UserControl_Resize();
  FrameLook Look() const;
  wxColour BoxColour() const;
  void ApplyColours();
  void RefreshFrame();
  void BindLook();

  const char* className_;
  long boxStyle_ = 0;
  FrameLayer* txtBackGround = nullptr;
  FrameLayer* picBackGround = nullptr;
  std::vector<EditBox*> boxes_;
  std::unique_ptr<platform::VisualStyle> style_;
  TextLayers layers_;
  bool isThreeD_ = true;
  bool isNumber_ = false;
  bool has3D_ = true;
  bool isLocked_ = false;
  std::int16_t maxLength_ = 0;
  ControlColour backColor_ = kWindowColour;
  ControlColour foreColor_ = kWindowTextColour;
};

}  // namespace mindloft
