#pragma once

#include <wx/string.h>

#include <array>
#include <functional>
#include <vector>

#include "backend/corvane/User.h"
#include "editors/RecordField.h"

class wxWindow;

namespace mindloft {

class FramedTextBox;

/// The personal data of a user in the boxes of a form.
class UserFields {
 public:
  /// The form must hold `txtName`, `txtFName`, `txtDept`, `txtMail`, `txtTel` and `TxtDesc`.
  explicit UserFields(const wxWindow& form);

  /// Shows the user's data.
  void Get(const Corvane::User& user);
  /// Puts what has been edited into the user. A text that its box cannot show as it is, such as one of an
  /// older rule, is not touched by that.
  void Set(Corvane::User& user);
  void OnChange(const std::function<void()>& changed);
  void SetLocked(bool locked);

  FramedTextBox& Name() const { return *boxes_[0].box; }
  FramedTextBox& FullName() const { return *boxes_[1].box; }
  FramedTextBox& EMail() const { return *boxes_[3].box; }

  /// All fields of a user's record that can be edited, for bringing changes together.
  static std::vector<RecordField<UserRecord>> All();

 private:
  struct Box {
    FramedTextBox* box;
    const std::string& (Corvane::User::*get)() const;
    void (Corvane::User::*set)(std::string);
    wxString shown;
  };
  std::array<Box, 6> boxes_;  ///< in the order of writing
};

}  // namespace mindloft
