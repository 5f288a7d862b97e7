#include "editors/user/UserFields.h"

#include "backend/tessaline/Services.h"
#include "controls/rows/DirectoryTexts.h"
#include "controls/texts/FramedTextBox.h"
#include "core/forms/Form.h"

namespace mindloft {
namespace {

constexpr int kEMail = 59414;
constexpr int kDepartment = 61604;
constexpr int kTelephone = 61605;
constexpr int kAccount = 61606;

}  // namespace

UserFields::UserFields(const wxWindow& form) {
  using Corvane::User;
  const auto box = [&form](const char* name) { return FindControl<FramedTextBox>(form, name); };
  boxes_ = {{{box("txtName"), &User::Name, &User::SetName, {}},
             {box("txtFName"), &User::FullName, &User::SetFullName, {}},
             {box("txtDept"), &User::Department, &User::SetDepartment, {}},
             {box("txtMail"), &User::EMail, &User::SetEMail, {}},
             {box("txtTel"), &User::Telephone, &User::SetTelephone, {}},
             {box("TxtDesc"), &User::Description, &User::SetDescription, {}}}};
}

void UserFields::Get(const Corvane::User& user) {
  // The order of reading is not that of writing.
  for (const std::size_t i : {0, 2, 3, 1, 5, 4}) {
    Box& each = boxes_[i];
    each.box->SetText(ToWx((user.*each.get)()));
    each.shown = each.box->Text();
  }
}

void UserFields::Set(Corvane::User& user) {
  for (Box& each : boxes_) {
    const wxString text = each.box->Text();
    if (text == each.shown) continue;
    (user.*each.set)(ToUtf8(text));
    each.shown = text;
  }
}

void UserFields::OnChange(const std::function<void()>& changed) {
  for (Box& each : boxes_) each.box->Change = changed;
}

void UserFields::SetLocked(bool locked) {
  for (Box& each : boxes_) each.box->SetLocked(locked);
}

std::vector<RecordField<UserRecord>> UserFields::All() {
  const auto state = [](const bool& enabled) {
    return GetResource().GetString(enabled ? texts::kStateEnabled : texts::kStateDisabled);
  };
  return {Field(texts::kColumnName, &UserRecord::name),
          Field(texts::kColumnFullName, &UserRecord::fullName),
          Field(kDepartment, &UserRecord::department),
          Field(kEMail, &UserRecord::email),
          Field(kTelephone, &UserRecord::telephone),
          Field(texts::kColumnDescription, &UserRecord::description),
          Field<UserRecord, bool>(kAccount, &UserRecord::enabled, state)};
}

}  // namespace mindloft
