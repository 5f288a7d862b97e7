#include "backend/tessaline/login/SettingsForm.h"

#include <utility>

namespace mindloft {
namespace {

SettingsForm& TheForm() {
  static SettingsForm form;
  return form;
}

}  // namespace

void SetSettingsForm(SettingsForm form) {
  TheForm() = std::move(form);
}

const SettingsForm& GetSettingsForm() {
  return TheForm();
}

}  // namespace mindloft
