#pragma once

#include <wx/panel.h>

#include <functional>

#include "controls/numbers/SpinArrows.h"

class wxTextCtrl;

namespace mindloft {

/// What the numeric controls share: a text box that fills the control, with a spinner's arrows at its right
/// edge (at the left one from right to left), and their events to the form.
class SpunBox : public wxPanel {
 public:
  // Events to the form that holds the control; each may be empty. An exception of a handler is shown. Keys
  // are those of controls/ControlKeys.h; a handler cancels one by 0.
  std::function<void()> Change;
  std::function<void(int& KeyCode, int Shift)> KeyDown;
  std::function<void(int& KeyAscii)> KeyPress;  ///< after filtering: 0 when the key was cancelled
  std::function<void(int& KeyCode, int Shift)> KeyUp;
  std::function<void()> LostFocus;  ///< after the control has brought its content in order

  /// Reloads the captions in the current language.
  void LoadInfoOnControl();

 protected:
  /// As wxPanel's; the names are those of the box and of the arrows.
  bool CreateParts(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size, long style,
                   const wxString& name, const wxString& boxName, const wxString& arrowsName);

  // What the derived control does, without events to the form.
  virtual void FilterTyped(int& keyAscii) = 0;
  virtual void OnArrowKey(bool up) = 0;
  /// One press of an arrow, or one notch of the wheel.
  virtual void OnArrowPressed(bool up) = 0;
  virtual void OnTextChanged() = 0;
  virtual void OnLeave() = 0;

  wxTextCtrl& Box() const { return *box_; }
  SpinArrows& Arrows() const { return *arrows_; }
  /// Toolkit styles of the box; a change makes the box anew, with its content and state.
  void SetBoxStyle(long style);
  void ShowArrows(bool shown);
  void RaiseChange();

  wxSize DoGetBestClientSize() const override;

 private:
  void CreateBox(const wxString& name);
  void CopyState(const wxTextCtrl& from);
  void BindBox();
  void BindOwnKeys();
  void PlaceParts();
  /// The width of the arrows and their least height.
  wxSize ArrowsSize() const;
  void BoxKeyDown(wxKeyEvent& event);
  void BoxChar(wxKeyEvent& event);
  void OnKeyUp(wxKeyEvent& event);
  void OnWheel(wxMouseEvent& event);
  /// False when a handler cancelled the key.
  bool RaiseKeyDown(const wxKeyEvent& event);
  void RaiseKeyPress(int& keyAscii);

  wxTextCtrl* box_ = nullptr;
  SpinArrows* arrows_ = nullptr;
  long boxStyle_ = 0;
  int wheelRotation_ = 0;
};

}  // namespace mindloft
