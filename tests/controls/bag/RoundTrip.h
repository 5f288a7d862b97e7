#pragma once

#include <gmock/gmock.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "backend/errors/Error.h"
#include "tests/controls/bag/ControlForm.h"

namespace mindloft::test {

// What every control with kept properties owes to its forms, by its class alone:
//
//   TEST_F(MyControlTest, KeepsItsProperties) {
//     ExpectDefaults<MyControl>("MyControl", {{"Enabled", "True"}, {"Text", ""}});
//     ExpectRoundTrips<MyControl>("MyControl");
//     ExpectRefusals("MyControl", "Enabled");
//   }

using Texts = std::vector<std::pair<std::string, std::string>>;

inline Texts TextsOf(const PropertyBag& bag) {
  Texts texts;
  for (const auto& [name, text] : bag.Entries()) texts.emplace_back(name.utf8_string(), text.utf8_string());
  return texts;
}

/// Properties that a form does not name have exactly these values, in the order in which they are kept.
template <typename Control>
void ExpectDefaults(const char* className, const Texts& defaults) {
  ControlForm form(className, wxString());
  EXPECT_EQ(TextsOf(form.Get<Control>().WriteProperties()), defaults);
  EXPECT_FALSE(form.Get<Control>().ArePropertiesChanged());
}

/// Each property can have another value than its default, and what is kept of the control makes an equal one.
/// `more` are texts to try beside the usual ones, for a property that takes only special texts.
template <typename Control>
void ExpectRoundTrips(const char* className, std::initializer_list<const char*> more = {}) {
  std::vector<wxString> texts{"True", "False", "3", "&H00336699", L"  <b>&amp; \"\x00E9\U0001F600]]> ]] "};
  for (const char* text : more) texts.push_back(wxString::FromUTF8(text));
  ControlForm form(className, wxString());
  auto& control = form.Get<Control>();
  const PropertyBag defaults = control.WriteProperties();
  for (const auto& property : Control::Properties().Entries()) {
    bool changed = false;
    for (const wxString& text : texts) {
      PropertyBag bag = defaults;
      bag.Write(property.name, text);
      try {
        control.ReadProperties(bag);
      } catch (const Error&) {
        continue;
      }
      const PropertyBag kept = control.WriteProperties();
      changed |= *kept.Find(property.name) != *defaults.Find(property.name);
      ControlForm again(className, kept);
      EXPECT_EQ(TextsOf(again.Get<Control>().WriteProperties()), TextsOf(kept)) << property.name;
    }
    EXPECT_TRUE(changed) << property.name << " has always the same value";
  }
}

/// Why the form cannot be loaded; empty when it can.
inline std::string RefusalOf(const char* className, const char* parameters) {
  try {
    ControlForm form(className, wxString::FromUTF8(parameters));
  } catch (const Error& error) {
    return error.Description();
  }
  return {};
}

/// A form with an unknown parameter, a property twice, or a text of another type is refused with the form's
/// and the control's name. `truthValue` names a property of that type.
inline void ExpectRefusals(const char* className, const std::string& truthValue) {
  using testing::AllOf;
  using testing::HasSubstr;
  const std::string open = "<" + truthValue + ">";
  const std::string close = "</" + truthValue + ">";
  const std::pair<std::string, std::string> refused[] = {
      {"<Unheard>1</Unheard>", "Unheard"},
      {"<unheard>1</unheard>", "unheard"},
      {open + "perhaps" + close, "perhaps"},
      {open + close, truthValue},
      {open + "True" + close + open + "True" + close, truthValue},
  };
  for (const auto& [parameters, named] : refused) {
    const std::string refusal = RefusalOf(className, parameters.c_str());
    EXPECT_THAT(refusal, AllOf(HasSubstr(ControlForm::Name().utf8_string()), HasSubstr("ctlTried"),
                               HasSubstr(className), HasSubstr(named)))
        << parameters;
  }
}

}  // namespace mindloft::test
