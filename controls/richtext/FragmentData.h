#pragma once

#include <wx/richtext/richtextctrl.h>

#include <memory>

namespace mindloft {

class RichEditor;

/// Formatted text that comes from the clipboard or the mouse, from whatever program. Of it arrives what a
/// stored document may hold (SanitizeDocument).
class FragmentData : public wxRichTextBufferDataObject {
 public:
  using wxRichTextBufferDataObject::SetData;
  bool SetData(std::size_t size, const void* bytes) override;
};

bool HasClipboardFragment();
/// The formatted text on the clipboard; null when there is none.
std::unique_ptr<wxRichTextBuffer> ClipboardFragment();

/// Takes formatted text that is dropped on an editor, unless the editor is locked.
class FragmentDropTarget : public wxDropTarget {
 public:
  explicit FragmentDropTarget(RichEditor& editor);
  wxDragResult OnDragOver(wxCoord x, wxCoord y, wxDragResult proposed) override;
  wxDragResult OnData(wxCoord x, wxCoord y, wxDragResult proposed) override;

 private:
  RichEditor& editor_;
};

}  // namespace mindloft
