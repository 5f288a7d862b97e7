#include <gmock/gmock.h>

#include <fstream>

#include "backend/errors/Error.h"
#include "backend/tessaline/Text.h"
#include "config/frmConfiguration.h"
#include "core/LanguageImport.h"
#include "core/Refresh.h"
#include "platform/Paths.h"
#include "platform/RegistryImport.h"
#include "tests/config/ConfigFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using platform::RegistryRoot;
using testing::HasSubstr;

constexpr const char* kLanguageKey = "Software\\Ordwell\\Mindloft\\Resource";
constexpr const char* kCaptionKey = "SOFTWARE\\Ordwell\\Mindloft\\Resource\\Forms\\frmSysAdmin";

/// A registry whose imports run until the test lets them end, and have the effect that it wants.
class SlowRegistry : public platform::RegistryStore {
 public:
  enum class Effect { Whole, UserOnly, None, NoEditor };

  std::optional<platform::RegistryValue> Get(RegistryRoot root, const std::string& key,
                                             const std::string& name) const override {
    return store_->Get(root, key, name);
  }
  void Set(RegistryRoot root, const std::string& key, const std::string& name,
           const platform::RegistryValue& value) override {
    if (inImport_ && effect == Effect::UserOnly && root == RegistryRoot::LocalMachine) return;
    store_->Set(root, key, name, value);
  }
  void Delete(RegistryRoot root, const std::string& key, const std::string& name) override {
    store_->Delete(root, key, name);
  }
  std::vector<std::pair<std::string, platform::RegistryValue>> Values(RegistryRoot root,
                                                                      const std::string& key) const override {
    return store_->Values(root, key);
  }
  void DeleteKey(RegistryRoot root, const std::string& key) override { store_->DeleteKey(root, key); }

  std::unique_ptr<platform::RegistryImport> Import(const std::filesystem::path& file) override {
    if (effect == Effect::NoEditor) throw Error(ErrorNumber::Registry, "there is no editor");
    file_ = file;
    *running_ = true;
    return std::make_unique<Running>(running_);
  }
  void End() {
    inImport_ = true;
    if (effect != Effect::None) platform::ImportWithOwnReader(file_, *this);
    inImport_ = false;
    *running_ = false;
  }

  Effect effect = Effect::Whole;

 private:
  class Running : public platform::RegistryImport {
   public:
    explicit Running(std::shared_ptr<bool> running) : running_(std::move(running)) {}
    bool IsRunning() const override { return *running_; }

   private:
    std::shared_ptr<bool> running_;
  };

  std::shared_ptr<platform::RegistryStore> store_ = platform::MemoryRegistry();
  std::filesystem::path file_;
  std::shared_ptr<bool> running_ = std::make_shared<bool>(false);
  bool inImport_ = false;
};

class LanguageImportTest : public ConfigFixture {
 protected:
  static wxString Name(int code) { return GetResource().LanguageName(code); }
  std::string Stored(RegistryRoot root, const char* key, const char* name) const {
    const auto value = registry_->Get(root, key, name);
    const auto* text = value ? std::get_if<std::string>(&*value) : nullptr;
    return text ? *text : std::string();
  }
  std::string StoredLanguage() const {
    return Stored(RegistryRoot::CurrentUser, kLanguageKey, "CurrentLangue");
  }

  std::shared_ptr<SlowRegistry> UseSlowRegistry(SlowRegistry::Effect effect) {
    auto slow = std::make_shared<SlowRegistry>();
    slow->effect = effect;
    registry_ = slow;
    RestartServices();
    return slow;
  }
};

TEST_F(LanguageImportTest, PickingALanguageImportsItAndEveryWindowFollows) {
  int told = 0;
  const auto listener = GetRefresh()->OnNotifyLanguage([&] { ++told; });
  for (const int code : {2052, 1031, 1025, 1041, 1055, 1033}) {
    const int before = told;
    Configure([&](User& user) {
      user.Choose("cboLanguage", Name(code));
      user.Click("cmdApply");
      EXPECT_GT(told, before);
      EXPECT_EQ(user.Title(), GetResource().Language().Title("frmConfiguration").value()) << code;
      EXPECT_EQ(user.Read("cboLanguage"), Name(code));
      EXPECT_EQ(user.Read("OptWeb"), GetResource().CaptionOf("frmConfiguration", "OptWeb")->text);
      user.Click("cmdCancel");
    });
    const std::string text = std::to_string(code);
    EXPECT_EQ(GetResource().CurrentLanguage(), code);
    EXPECT_EQ(Setting(14), ToWx(text));
    EXPECT_EQ(StoredLanguage(), text);
    EXPECT_EQ(ToWx(Stored(RegistryRoot::LocalMachine, kCaptionKey, "")),
              GetResource().Language().Title("frmSysAdmin").value())
        << "the caption by which a second start finds the window";
    RestartServices();
    EXPECT_EQ(GetResource().CurrentLanguage(), code) << "the next start speaks it";
  }
}

TEST_F(LanguageImportTest, TheCurrentLanguageIsImportedAgainAndTheConfigurationIsTheAuthority) {
  Set(14, "2052");
  registry_->Set(RegistryRoot::CurrentUser, kLanguageKey, "CurrentLangue", std::string("1031"));
  RestartServices();
  EXPECT_EQ(GetResource().CurrentLanguage(), 1031);
  registry_->DeleteKey(RegistryRoot::LocalMachine, kCaptionKey);
  Configure([](User& user) {
    EXPECT_EQ(Setting(14), "1031") << "the setting follows as soon as the list is filled";
    user.Choose("cboLanguage", Name(1031));
    user.Click("cmdOk");
  });
  EXPECT_NE(Stored(RegistryRoot::LocalMachine, kCaptionKey, ""), "");
}

TEST_F(LanguageImportTest, TheFormDoesNotWaitForTheImport) {
  const auto slow = UseSlowRegistry(SlowRegistry::Effect::Whole);
  Configure([&](User& user) {
    user.Choose("cboLanguage", Name(1031));
    user.Click("cmdApply");
    EXPECT_EQ(GetResource().CurrentLanguage(), 1033);
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    slow->End();
    WaitFor([] { return GetResource().CurrentLanguage() == 1031; }, "the language");
    EXPECT_EQ(user.Read("cboLanguage"), Name(1031));
    EXPECT_EQ(Setting(14), "1031");
    // The form may close before the import has ended.
    user.Choose("cboLanguage", Name(2052));
    user.Click("cmdOk");
  });
  slow->End();
  WaitFor([] { return GetResource().CurrentLanguage() == 2052; }, "the language after the form");
  EXPECT_EQ(Setting(14), "2052");
}

TEST_F(LanguageImportTest, AFailureIsToldAndLeavesTheOldSettingsWhole) {
  using Effect = SlowRegistry::Effect;
  for (const auto& [effect, message] : {std::pair{Effect::NoEditor, 61800}, std::pair{Effect::None, 61803}}) {
    const auto slow = UseSlowRegistry(effect);
    const auto settings = AllSettings();
    ModalDriver modal;
    modal.ExpectForm("frmConfiguration", [&, number = message](User& user) {
      user.Choose("cboLanguage", Name(1031));
      if (effect == Effect::NoEditor) {
        modal.ExpectMessage(number, wxID_OK);
        user.Click("cmdApply");
      } else {
        user.Click("cmdApply");
        modal.ExpectMessage(number, wxID_OK);
        slow->End();
        WaitFor([&] { return modal.LastMessage().Contains(Name(1031)); }, "the message");
      }
      EXPECT_EQ(user.Read("cboLanguage"), "English");
      user.Click("cmdCancel");
    });
    frmConfiguration(nullptr).ShowModal();
    modal.Verify();
    EXPECT_EQ(GetResource().CurrentLanguage(), 1033);
    EXPECT_EQ(Setting(14), "1033");
    RestartServices();
    EXPECT_EQ(GetResource().CurrentLanguage(), 1033);
  }
}

TEST_F(LanguageImportTest, WithoutRightsToTheMachineTheUserHasTheLanguageAndIsToldOnce) {
  const auto slow = UseSlowRegistry(SlowRegistry::Effect::UserOnly);
  ModalDriver modal;
  modal.ExpectMessage(61802, wxID_OK);
  for (const int code : {1031, 2052}) {
    ASSERT_TRUE(ImportLanguage(code, LanguageRegistryFile(code)));
    slow->End();
    WaitFor([&] { return GetResource().CurrentLanguage() == code; }, "the language");
    Settle();
  }
  EXPECT_EQ(StoredLanguage(), "2052");
}

TEST_F(LanguageImportTest, ALanguageWithoutARegistryFileIsIgnoredAndADamagedOneIsTold) {
  const auto languages = folder_ / "languages";
  std::filesystem::create_directories(languages);
  for (const char* code : {"9", "10"}) {
    std::ofstream(languages / (std::string(code) + ".xml"))
        << "<?xml version=\"1.0\" encoding=\"UTF-8\"?><language code=\"" << code << "\" name=\"Own " << code
        << "\" direction=\"ltr\"><texts/><forms/></language>";
  }
  std::ofstream(languages / "10.reg") << "no registry file";
  ResetServices({registry_, folder_ / "log", languages, secrets_});
  EXPECT_EQ(LanguageRegistryFile(9), "");
  EXPECT_EQ(LanguageRegistryFile(77), "");
  ModalDriver modal;
  modal.ExpectForm("frmConfiguration", [&](User& user) {
    for (const char* name : {"Own 9", "Own 10"}) {
      user.Choose("cboLanguage", name);
      if (name == wxString("Own 10")) modal.ExpectMessage(61801, wxID_OK);
      user.Click("cmdApply");
      EXPECT_EQ(user.Read("cboLanguage"), "English");
    }
    user.Click("cmdCancel");
  });
  frmConfiguration(nullptr).ShowModal();
  EXPECT_EQ(GetResource().CurrentLanguage(), 1033);
  EXPECT_EQ(StoredLanguage(), "");
}

}  // namespace
}  // namespace mindloft::test
