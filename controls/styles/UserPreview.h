#pragma once

#include <wx/panel.h>

#include <memory>

#include "controls/bag/BagControl.h"

class wxRichTextAttr;

namespace mindloft {

class PreviewBox;
namespace Corvane {
class Style;
struct StyleFormat;
}  // namespace Corvane

/// Draws a text in a style, in the rich-text box `picPreview`. Nobody can write in it.
class UserPreview : public wxPanel, public BagControl<UserPreview> {
 public:
  UserPreview() = default;  ///< for XRC; Create follows
  explicit UserPreview(wxWindow* parent, const wxString& name = "UserPreview");
  bool Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size, long style,
              const wxString& name);
  static const PropertyTable<UserPreview>& Properties();

  /// What the next Preview draws; its line breaks are carriage return and line feed.
  wxString PreviewText() const { return previewText_; }
  void SetPreviewText(const wxString& text);

  /// Draws the text in the style, with what waits there for an update; nothing empties the box. When the
  /// style's font is not installed, a message says so and the box stays empty.
  void Preview(const std::shared_ptr<Corvane::Style>& style);

  /// A style's numeric text; 0 when it is none, or one that no 16-bit number can hold.
  static int GetIntValue(const wxString& text);
  // Of the letter "a" in the font of the last Preview, in tenths of a millimetre: what the box counts in.
  int GetFontHeight() const;
  int GetFontWidth() const;

 protected:
  wxSize DoGetBestClientSize() const override;

 private:
  /// False, and told, when the computer does not have the font.
  bool ApplyFont(const Corvane::StyleFormat& format, wxRichTextAttr& look);
  static void ApplyColour(const Corvane::StyleFormat& format, wxRichTextAttr& look);
  static void ApplyAlignment(const Corvane::StyleFormat& format, wxRichTextAttr& look);
  void ApplyDistances(const Corvane::StyleFormat& format, wxRichTextAttr& look) const;
  void ApplyBackground(const Corvane::StyleFormat& format);
  void InsertText(const wxRichTextAttr& look);
  wxSize LetterSize() const;

  PreviewBox* picPreview = nullptr;
  wxString previewText_;
  wxFont font_;
};

}  // namespace mindloft
