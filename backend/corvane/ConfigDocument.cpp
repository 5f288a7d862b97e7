#include "backend/corvane/ConfigDocument.h"

#include "backend/corvane/ConfigXml.h"
#include "backend/errors/Error.h"

namespace mindloft::Corvane {

void ConfigDocument::SetValue(const std::string& expression, const std::string& text) {
  try {
    Store(expression, text);
  } catch (const Error& error) {
    if (error.Number() != ErrorNumber::Conflict) throw;
    // Another console has stored between reading and writing. One attribute can be set in what it stored,
    // too.
    Store(expression, text);
  }
}

void ConfigDocument::Store(const std::string& expression, const std::string& text) {
  auto& door = session_->Door();
  auto configuration = door.LoadUserConfiguration(session_->id);
  ConfigXml document(configuration.xml);
  document.Set(expression, text);
  auto xml = document.Text();
  if (xml == configuration.xml) return;
  configuration.xml = std::move(xml);
  door.StoreUserConfiguration(session_->id, configuration);
}

ConfigValue ConfigDocument::Select(const std::string& expression, const std::string& defaultText) const {
  const auto configuration = session_->Door().LoadUserConfiguration(session_->id);
  return ConfigValue(ConfigXml(configuration.xml).Select(expression).value_or(defaultText));
}

}  // namespace mindloft::Corvane
