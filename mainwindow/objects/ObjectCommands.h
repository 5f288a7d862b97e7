#pragma once

#include <wx/string.h>

class wxWindow;

namespace mindloft {

class DomainContexts;
class ObjectKindRegistry;
class SelectionReader;

/// The three commands on directory objects. What they do with a kind of object stands in the kind's
/// registration.
class ObjectCommands {
 public:
  /// All must outlive it. `owner`: of the windows that the commands open.
  ObjectCommands(wxWindow& owner, const ObjectKindRegistry& kinds, const DomainContexts& domains,
                 const SelectionReader& selection)
      : owner_(owner), kinds_(kinds), domains_(domains), selection_(selection) {}

  /// Creates an object of the kind (the key of its tree node), in the domain of that key where the kind lives
  /// in one. Nothing for a kind that is not made in the console, and for a domain that is gone. `flag`
  /// belongs to the procedure's contract; callers pass 0.
  void NewObject(const wxString& kind, const wxString& domainKey, int flag);
  /// Deletes what is selected. A refusal comes before any question.
  void DeleteObject();
  /// Opens the property sheet of the object of that key; an object of a domain lies in the selected one.
  void SetProperty(const wxString& kind, const wxString& key);

 private:
  wxWindow& owner_;
  const ObjectKindRegistry& kinds_;
  const DomainContexts& domains_;
  const SelectionReader& selection_;
};

}  // namespace mindloft
