#pragma once

#include <wx/string.h>
#include <wx/xrc/xmlres.h>

#include <set>
#include <vector>

namespace mindloft {

/// The program's XRC: reads the built-in forms, knows the controls that they use, and keeps the errors that
/// the toolkit would only report.
class FormResource : public wxXmlResource {
 public:
  /// The process's one; the toolkit ends it when the program does.
  static FormResource& Get();

  /// Creates the named form into `instance`; throws when anything about the resource is wrong.
  void Load(wxObject* instance, wxWindow* parent, const wxString& name, const wxString& className);

 protected:
  void DoReportError(const wxString& file, const wxXmlNode* position, const wxString& message) override;

 private:
  FormResource();
  void LoadFile(const wxString& name);

  std::set<wxString> loaded_;
  std::vector<wxString> errors_;
};

}  // namespace mindloft
