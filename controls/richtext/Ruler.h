#pragma once

#include <wx/window.h>

#include "controls/richtext/RulerModel.h"

namespace mindloft {

class RichEditor;

/// The ruler above the editor, in centimetres or inches as the system's locale measures: shows the indents
/// and tab stops of the caret's paragraph. Indents and stops are dragged; a press in an empty place sets a
/// tab stop, one that is dragged off the ruler goes. Each drag is one step to undo, Esc gives it up. The
/// keyboard has the paragraph and tab dialogs instead.
class Ruler : public wxWindow {
 public:
  Ruler(wxWindow* parent, const wxString& name);
  ~Ruler() override;
  /// The editor outlives it.
  void SetEditor(RichEditor* editor) { editor_ = editor; }
  /// Takes what holds at the caret.
  void Update() override;

  const RulerModel& Model() const { return model_; }
  /// The place of the text's left edge, and of something that far from it, in pixels from the ruler's.
  int PixelOf(int tenths) const;
  int TenthsOf(int pixel) const;

  bool AcceptsFocus() const override { return false; }
  void SetLayoutDirection(wxLayoutDirection direction) override;

 protected:
  wxSize DoGetBestClientSize() const override;

 private:
  struct Hit {
    RulerMark mark = RulerMark::None;
    int tab = 0;
  };

  void OnPaint();
  void OnKey(wxKeyEvent& event);
  void OnLeftDown(const wxMouseEvent& event);
  void OnMotion(const wxMouseEvent& event);
  void OnLeftUp();
  void GiveUp();
  void EndDrag();
  void ApplyDrag();
  Hit HitTest(const wxPoint& place) const;
  double PixelsPerTenth() const;
  void ShowTip(const Hit& hit);

  RichEditor* editor_ = nullptr;
  RulerModel model_;
  RulerModel before_;  ///< as it was when the drag began
  Hit drag_;
  bool isOff_ = false;  ///< the tab stop is dragged off the ruler
  int tip_ = 0;
};

}  // namespace mindloft
