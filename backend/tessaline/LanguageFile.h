#pragma once

#include <wx/string.h>

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace mindloft::Tessaline {

/// One language: resources/languages/<code>.xml.
///
///   <language code="1033" name="English" direction="ltr">
///     <texts><text id="59300">Mindloft server</text> ...</texts>
///     <forms><form name="frmSysAdmin" title="..."><caption control="mnuFile" tip="...">&amp;File</caption>
///     ...</form></forms>
///   </language>
///
/// Texts and messages share one row of numbers. "&" marks the access key of a caption.
class LanguageFile {
 public:
  struct Caption {
    wxString text;
    wxString tip;
  };

  /// Throws Error(PathAccess) when it cannot be read and Error(TypeMismatch) when it is damaged.
  static LanguageFile Load(const std::filesystem::path& file) { return Parse(Read(file)); }
  static LanguageFile Parse(std::string_view xml);
  /// The bytes of a file, not looked at yet. Throws Error(PathAccess), or TypeMismatch when it is far too
  /// large.
  static std::string Read(const std::filesystem::path& file);

  int Code() const { return code_; }
  const wxString& Name() const { return name_; }
  bool IsRightToLeft() const { return rightToLeft_; }
  std::optional<wxString> Text(int number) const;
  std::optional<wxString> Title(const wxString& form) const;
  std::optional<Caption> CaptionOf(const wxString& form, const wxString& control) const;
  const std::unordered_map<int, wxString>& Texts() const { return texts_; }
  const std::map<wxString, std::map<wxString, Caption>>& Forms() const { return forms_; }

 private:
  int code_ = 0;
  wxString name_;
  bool rightToLeft_ = false;
  std::unordered_map<int, wxString> texts_;
  std::map<wxString, wxString> titles_;
  std::map<wxString, std::map<wxString, Caption>> forms_;
};

}  // namespace mindloft::Tessaline
