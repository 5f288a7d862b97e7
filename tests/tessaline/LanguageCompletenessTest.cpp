#include <gtest/gtest.h>
#include <wx/crt.h>

#include <fstream>
#include <iterator>
#include <map>
#include <pugixml.hpp>
#include <regex>
#include <set>

#include "backend/errors/ErrorNumbers.h"
#include "backend/tessaline/LanguageFile.h"
#include "backend/tessaline/Text.h"
#include "platform/Paths.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {
namespace {

namespace fs = std::filesystem;
using Tessaline::LanguageFile;

const std::vector<std::string> sourceFolders = {"app",      "mainwindow", "editors", "config",
                                                "controls", "core",       "backend"};

std::string Content(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// All files of the program's own sources with one of the extensions.
std::vector<fs::path> Sources(const std::set<std::string>& extensions) {
  std::vector<fs::path> found;
  for (const auto& folder : sourceFolders) {
    fs::path root = fs::path(MINDLOFT_SOURCE_FOLDER) / folder;
    if (!fs::exists(root)) continue;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
      if (extensions.count(entry.path().extension().string())) found.push_back(entry.path());
    }
  }
  return found;
}

/// "%1", "%2" and "%%" of a text, with how often each occurs.
std::map<std::string, int> Placeholders(const wxString& text) {
  std::map<std::string, int> counted;
  std::string utf8 = ToUtf8(text);
  static const std::regex placeholder("%[0-9%]");
  for (std::sregex_iterator at(utf8.begin(), utf8.end(), placeholder), end; at != end; ++at) {
    ++counted[at->str()];
  }
  return counted;
}

/// The letter after a single "&", in upper case; empty when there is none.
wxString AccessKey(const wxString& text) {
  for (std::size_t at = 0; at + 1 < text.length(); ++at) {
    if (text[at] != '&') continue;
    if (text[at + 1] != '&') return wxString(text[at + 1]).Upper();
    ++at;
  }
  return {};
}

class LanguageCompletenessTest : public PrivateServices {
 protected:
  void SetUp() override {
    PrivateServices::SetUp();
    for (int code : GetResource().Languages()) {
      languages_[code] = LanguageFile::Load(LanguageFolder() / (std::to_string(code) + ".xml"));
      EXPECT_EQ(languages_[code].Code(), code);
    }
    for (const auto& [number, text] : languages_.at(1033).Texts()) numbers_.insert(number);
  }
  const LanguageFile& English() const { return languages_.at(1033); }

  std::map<int, LanguageFile> languages_;
  std::set<int> numbers_;
};

TEST_F(LanguageCompletenessTest, EveryLanguageHasTheSameTextsWithTheSamePlaceholders) {
  for (const auto& [code, language] : languages_) {
    for (const auto& [number, text] : language.Texts()) {
      EXPECT_TRUE(numbers_.count(number)) << "only in " << code << ": " << number;
      EXPECT_FALSE(text.empty()) << number << " in " << code;
    }
    for (int number : numbers_) {
      auto text = language.Text(number);
      EXPECT_TRUE(text) << number << " missing in " << code;
      if (!text) continue;
      EXPECT_EQ(Placeholders(*text), Placeholders(*English().Text(number))) << number << " in " << code;
    }
  }
}

TEST_F(LanguageCompletenessTest, EveryLanguageHasTheSameCaptionsWithTheSameTips) {
  for (const auto& [code, language] : languages_) {
    for (const auto& [form, captions] : language.Forms()) {
      EXPECT_TRUE(English().Forms().count(form)) << ToUtf8(form) << " only in " << code;
    }
    for (const auto& [form, captions] : English().Forms()) {
      EXPECT_EQ(language.Title(form).has_value(), English().Title(form).has_value())
          << ToUtf8(form) << " " << code;
      for (const auto& [control, caption] : captions) {
        std::string place = ToUtf8(form + "." + control) + " in " + std::to_string(code);
        auto other = language.CaptionOf(form, control);
        EXPECT_TRUE(other) << "missing: " << place;
        if (!other) continue;
        EXPECT_EQ(other->text.empty(), caption.text.empty()) << place;
        EXPECT_EQ(other->tip.empty(), caption.tip.empty()) << place;
        EXPECT_EQ(AccessKey(other->text).empty(), AccessKey(caption.text).empty()) << "access key: " << place;
      }
      auto known = language.Forms().find(form);
      if (known == language.Forms().end()) continue;
      EXPECT_EQ(known->second.size(), captions.size()) << ToUtf8(form) << " has other captions in " << code;
    }
  }
}

/// The items of a form's menus by the menu that they open in. The menus themselves stand in the bar. An
/// item's name starts with its menu's; those of one kind of object ("mnuUserDelete") stand in that kind's
/// context menu, and what makes a new one also in the file menu.
std::map<wxString, std::set<wxString>> Menus(const std::map<wxString, LanguageFile::Caption>& captions) {
  std::set<wxString> items;
  for (const auto& [control, caption] : captions) {
    if (control.StartsWith("mnu")) items.insert(control);
  }
  auto menuOf = [&](const wxString& item) {
    wxString menu;
    for (const auto& other : items) {
      bool within =
          item.StartsWith(other) && item.length() > other.length() && wxIsupper(item[other.length()]);
      if (within && other.length() > menu.length()) menu = other;
    }
    return menu;
  };
  std::map<wxString, std::set<wxString>> menus;
  std::set<wxString> ofKinds;
  for (const auto& item : items) {
    wxString kind;
    bool ofKind = item.EndsWith("addNew", &kind) || item.EndsWith("Delete", &kind) ||
                  item.EndsWith("Properties", &kind);
    wxString menu = menuOf(item);
    if (ofKind && menu.empty()) {
      menus["context " + kind].insert({item, "mnuEditSelectAll", "mnuViewRefresh"});
      if (item.EndsWith("addNew")) menus["mnuFile"].insert(item);
    } else {
      menus[menu.empty() ? wxString("bar") : menu].insert(item);
    }
  }
  return menus;
}

// "x.hide" is a second caption of control x.
TEST_F(LanguageCompletenessTest, NoAccessKeyTwiceInAFormOrAMenu) {
  std::size_t menus = 0;
  for (const auto& [code, language] : languages_) {
    for (const auto& [form, captions] : language.Forms()) {
      auto together = Menus(captions);
      menus += together.size();
      for (const auto& [control, caption] : captions) {
        if (!control.StartsWith("mnu") && !control.Contains(".")) together["controls"].insert(control);
      }
      for (const auto& [place, controls] : together) {
        std::map<wxString, wxString> keys;
        for (const auto& control : controls) {
          auto found = captions.find(control);
          wxString key = found == captions.end() ? wxString() : AccessKey(found->second.text);
          if (key.empty()) continue;
          auto [taken, free] = keys.emplace(key, control);
          EXPECT_TRUE(free) << ToUtf8(form) << " (" << ToUtf8(place) << ") in " << code << ": " << ToUtf8(key)
                            << " for " << ToUtf8(control) << " and " << ToUtf8(taken->second);
        }
      }
    }
  }
  EXPECT_GE(menus, 6 * 12u) << "the bar, its six menus and the five kinds' own, in each language";
}

TEST_F(LanguageCompletenessTest, EveryNumberInTheSourcesHasAText) {
  // In these ranges the sources have no other numbers.
  static const std::regex used(
      R"((?:^|[^\w'.])(2[35]0[0-9]{2}|49[0-9]{3}|5[0-9]{4}|6[012][0-9]{3})(?![\w'.]))");
  std::set<int> found;
  for (const auto& file : Sources({".cpp", ".h"})) {
    std::string text = Content(file);
    for (std::sregex_iterator at(text.begin(), text.end(), used), end; at != end; ++at) {
      int number = std::stoi((*at)[1].str());
      if (number == 61400) continue;  // the base of the system errors' texts
      found.insert(number);
      EXPECT_TRUE(numbers_.count(number)) << number << " in " << platform::PathToUtf8(file);
    }
  }
  // Most texts are used by their numbers; those of the tree's rows and of system errors are computed.
  EXPECT_GE(found.size(), 80u) << "the search itself must work";
}

TEST_F(LanguageCompletenessTest, EverySystemErrorHasAText) {
  for (auto number : {ErrorNumber::Unexpected, ErrorNumber::Overflow, ErrorNumber::OutOfMemory,
                      ErrorNumber::TypeMismatch, ErrorNumber::DiskFull, ErrorNumber::PathAccess,
                      ErrorNumber::Registry, ErrorNumber::InvalidExpression, ErrorNumber::Storage}) {
    EXPECT_TRUE(numbers_.count(61400 + static_cast<int>(number))) << static_cast<int>(number);
  }
}

// A control whose name starts with "_" or "sp" shows no text of its own; those in this list show what the
// program puts there.
const std::set<std::string> filledByProgram = {"frmLogin.txtWhere",
                                               "frmLogin.lblMessage",
                                               "frmCreateDirectory.lblPlace",
                                               "frmCreateDirectory.lblHint",
                                               "frmListUser.lblCount",
                                               "frmSelectUnit.lblCount",
                                               "frmDGroupProperty.lblCount",
                                               "frmRoleProperty.lblCount",
                                               "frmDGroupProperty.txtDescription",
                                               "frmConflict.lblWhat",
                                               "frmUserDetail.txtLastLogin",
                                               "frmUserDetail.lblStrength",
                                               "frmDomainInfo.lblCount",
                                               "frmDeleteKDomainProgress.lblWhat",
                                               "frmDeleteKDomainProgress.lblRows",
                                               "UserPrintSetup.lblArea",
                                               "UserPrintSetup.lblHint"};

TEST_F(LanguageCompletenessTest, EveryControlOfAFormThatShowsATextHasACaption) {
  static const std::set<std::string> showing = {"wxButton",         "wxCheckBox", "wxRadioButton",
                                                "wxStaticText",     "wxRadioBox", "wxToggleButton",
                                                "wxStaticBoxSizer", "wxStaticBox"};
  int forms = 0;
  for (const auto& file : Sources({".xrc"})) {
    pugi::xml_document document;
    ASSERT_TRUE(document.load_file(file.c_str())) << file;
    for (const auto& form : document.child("resource").children("object")) {
      ++forms;
      std::string formName = form.attribute("name").value();
      std::string kind = form.attribute("class").value();
      bool needsTitle = kind == "wxDialog";
      EXPECT_TRUE(!needsTitle || English().Title(ToWx(formName))) << formName << " has no title";
      for (const auto& found : form.select_nodes(".//object[@name]")) {
        std::string control = found.node().attribute("name").value();
        bool exempt = control.starts_with("_") || control.starts_with("sp") ||
                      filledByProgram.count(formName + "." + control);
        if (exempt || !showing.count(found.node().attribute("class").value())) continue;
        EXPECT_TRUE(English().CaptionOf(ToWx(formName), ToWx(control))) << formName << "." << control;
        EXPECT_FALSE(found.node().child("label"))
            << formName << "." << control << " has its text in the form";
      }
    }
  }
  EXPECT_GT(forms, 0);
}

}  // namespace
}  // namespace mindloft::test
