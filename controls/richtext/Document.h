#pragma once

#include <string>
#include <string_view>

namespace mindloft {

class RichEditor;

/// The document of an editor as it is stored: the XML of the component, or HTML, in UTF-8. Whatever comes in
/// or goes out is made safe (SanitizeDocument): no pictures, links or foreign elements, nothing loaded from
/// outside.
class Document {
 public:
  /// The editor is there before anything is loaded or saved, and outlives this.
  void SetEditor(RichEditor* editor) { editor_ = editor; }

  /// Shows a stored text in place of the present one; a plain text becomes paragraphs. This cannot be undone
  /// and tells no change. Returns the number of the message that tells the user what did not stay of the
  /// document (60095 broken, 60096 too large, 60097 something left out); 0: nothing is missing. Throws when
  /// the component refuses what should be safe.
  int Load(std::string_view stored);
  /// Throws DocumentTooLarge when it is more than a stored document may hold.
  std::string Save() const;

  /// The same from and to HTML, whose elements for text, tables, lists and formats are known.
  int LoadHtml(std::string_view html);
  std::string SaveHtml() const;

 private:
  void Show(const std::string& xml);

  RichEditor* editor_ = nullptr;
};

}  // namespace mindloft
