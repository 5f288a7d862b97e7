#include "tests/directory/DirectoryFixture.h"

namespace mindloft::test {
namespace {

class DomainDocumentTest : public DirectoryFixture {
 protected:
  DomainChange ChangeOf(const DomainRecord& domain) {
    DomainChange change;
    change.id = domain.id;
    change.version = domain.version;
    return change;
  }
};

TEST_F(DomainDocumentTest, StandsBesideThePlainDescriptionAndGoesWithIt) {
  const std::string document = "<richtext>\n\t\"Ünïcode\" \xF0\x9F\x93\x96</richtext>";
  auto domain = directory_->CreateDomain(
      admin_, {.name = "Domain", .description = "plain", .document = document}, {}, {});
  EXPECT_EQ(directory_->FindDomain(admin_, domain.id), domain);
  EXPECT_EQ(domain.document, document);
  // Lists do without.
  const auto row = directory_->DomainPage(admin_, {.collection = Collection::Domains}, 0, 1).at(0);
  EXPECT_EQ(row.description, "plain");
  EXPECT_EQ(row.document, "");

  auto renamed = ChangeOf(domain);
  renamed.name = "Renamed";
  domain = directory_->ChangeDomain(admin_, renamed);
  EXPECT_EQ(domain.document, document);
  auto formatted = ChangeOf(domain);
  formatted.document = "<richtext/>";
  domain = directory_->ChangeDomain(admin_, formatted);
  EXPECT_EQ(domain.version, 3);
  EXPECT_EQ(domain.description, "plain");
  auto plain = ChangeOf(domain);
  plain.description = "other";
  domain = directory_->ChangeDomain(admin_, plain);
  EXPECT_EQ(directory_->FindDomain(admin_, domain.id).value().document, "");

  // The journal tells that there was a change, not the whole document.
  const auto journal = Journal(2);
  EXPECT_EQ(journal[1].before, "{\"documentBytes\":" + std::to_string(document.size()) + "}");
  EXPECT_EQ(journal[1].after, "{\"documentBytes\":11}");
  EXPECT_EQ(journal[0].after, R"({"description":"other","documentBytes":0})");
}

TEST_F(DomainDocumentTest, RefusesWhatIsNoTextAndWhatIsTooLong) {
  const auto domain = AddDomain("Domain");
  auto change = ChangeOf(domain);
  for (const std::string& broken : {std::string("\xff"), std::string("a\0b", 3)}) {
    change.document = broken;
    EXPECT_EQ(NumberOf([&] { directory_->ChangeDomain(admin_, change); }), ErrorNumber::TextInvalid);
  }
  change.document = std::string((std::size_t{32} << 20) + 1, 'x');
  EXPECT_EQ(NumberOf([&] { directory_->ChangeDomain(admin_, change); }), ErrorNumber::TextTooLong);
  EXPECT_EQ(directory_->FindDomain(admin_, domain.id), domain);
}

}  // namespace
}  // namespace mindloft::test
