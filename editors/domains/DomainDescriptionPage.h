#pragma once

#include <functional>
#include <string>

#include "backend/directory/Records.h"

class wxButton;

namespace mindloft {

class FormDialog;
class TextControl;
namespace Corvane {
class KDomain;
}

/// The page of a domain's sheet on which its description is written, formatted, printed, and taken from and
/// put into files.
class DomainDescriptionPage {
 public:
  /// The form must hold `TxtDesc` and the buttons of the page. `changed` is told of every change of the text
  /// or its formats; a file's name begins with `name`.
  DomainDescriptionPage(FormDialog& form, std::function<void()> changed, std::function<std::string()> name);

  /// Shows the description that waits in the domain. One that has no formats yet, or is empty, takes the look
  /// of the style. What did not stay of a stored one is told, after the page has come up.
  void Display(const Corvane::KDomain& domain, ObjectId style);
  /// Another style was chosen, or the domain is another since a conflict was resolved: shows it where that is
  /// to be seen.
  void Follow(const Corvane::KDomain& domain, ObjectId style, bool isOther);
  /// Whether the user has changed something that is not stored.
  bool IsChanged() const { return isChanged_; }
  /// Puts a changed description into the domain; an unchanged one stays as it was stored. Throws
  /// DocumentTooLarge.
  void Put(Corvane::KDomain& domain) const;
  void SetStored() { isChanged_ = false; }

  /// The captions of the current language in the bars.
  void LoadInfo();
  void SetButtonStatus(bool mayChange);

 private:
  void Changed();
  void Tell(int message);

  FormDialog& form_;
  std::function<void()> changed_;
  bool isShown_ = false;
  bool isChanged_ = false;

  TextControl* TxtDesc = nullptr;
  wxButton* cmdOpen = nullptr;
};

}  // namespace mindloft
