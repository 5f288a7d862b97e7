#include "backend/tessaline/Registry.h"

#include "backend/errors/Error.h"
#include "backend/tessaline/Convert.h"
#include "backend/tessaline/StringHelper.h"
#include "backend/tessaline/Text.h"
#include "platform/Paths.h"

namespace mindloft::Tessaline {

using platform::RegistryRoot;

Registry::Registry(std::shared_ptr<platform::RegistryStore> store) : store_(std::move(store)) {}

wxString Registry::GetString(RegistryRoot root, const wxString& keyPath, const wxString& valueName,
                             int maximumLength) const {
  auto value = store_->Get(root, ToUtf8(keyPath), ToUtf8(valueName));
  auto* utf8 = value ? std::get_if<std::string>(&*value) : nullptr;
  if (!utf8) return {};
  wxString text = ToWx(*utf8);
  return maximumLength > 0 && StringHelper().Length(text) > maximumLength ? wxString() : text;
}

void Registry::SetString(RegistryRoot root, const wxString& keyPath, const wxString& valueName,
                         const wxString& text) {
  store_->Set(root, ToUtf8(keyPath), ToUtf8(valueName), ToUtf8(text));
}

std::int32_t Registry::GetNumber(RegistryRoot root, const wxString& keyPath,
                                 const wxString& valueName) const {
  auto value = store_->Get(root, ToUtf8(keyPath), ToUtf8(valueName));
  auto* number = value ? std::get_if<std::uint32_t>(&*value) : nullptr;
  return number ? static_cast<std::int32_t>(*number) : -1;
}

void Registry::SetNumber(RegistryRoot root, const wxString& keyPath, const wxString& valueName,
                         std::int32_t number) {
  store_->Set(root, ToUtf8(keyPath), ToUtf8(valueName), static_cast<std::uint32_t>(number));
}

std::vector<std::pair<wxString, wxString>> Registry::EnumValues(RegistryRoot root,
                                                                const wxString& keyPath) const {
  std::vector<std::pair<wxString, wxString>> texts;
  for (const auto& [name, value] : store_->Values(root, ToUtf8(keyPath))) {
    if (auto* text = std::get_if<std::string>(&value)) texts.emplace_back(ToWx(name), ToWx(*text));
  }
  return texts;
}

void Registry::DeleteValue(RegistryRoot root, const wxString& keyPath, const wxString& valueName) {
  store_->Delete(root, ToUtf8(keyPath), ToUtf8(valueName));
}

std::int32_t Registry::GetValue(RegistryRoot root, const wxString& keyPath, const wxString& valueName) const {
  auto value = store_->Get(root, ToUtf8(keyPath), ToUtf8(valueName));
  if (!value) return 0;
  if (auto* number = std::get_if<std::uint32_t>(&*value)) return static_cast<std::int32_t>(*number);
  auto* text = std::get_if<std::string>(&*value);
  if (!text) return 0;
  try {
    return Convert().ToLong(ToWx(*text));
  } catch (const Error&) {
    return 0;  // a text that is no number counts as absent
  }
}

std::unique_ptr<platform::RegistryImport> Registry::Import(const wxString& file) {
  return store_->Import(platform::PathFromUtf8(ToUtf8(file)));
}

bool Registry::IsImported(const wxString& file, platform::RegistryRoot root) const {
  return platform::IsImported(platform::PathFromUtf8(ToUtf8(file)), root, *store_);
}

}  // namespace mindloft::Tessaline
