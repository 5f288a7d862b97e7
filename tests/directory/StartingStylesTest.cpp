#include <algorithm>

#include "backend/directory/file/Schema.h"
#include "backend/directory/file/StartingStyles.h"
#include "tests/directory/DirectoryFixture.h"

namespace mindloft::test {
namespace {

class StartingStylesTest : public DirectoryFixture {
 protected:
  std::vector<StyleRecord> Styles() {
    return directory_->StylePage(admin_, {.collection = Collection::Styles}, 0, 100);
  }
  /// Opens the directory as one that a console of the first schema has left.
  void Reopen() {
    directory_.reset();
    {
      sqlite::Database database(file_, SQLITE_OPEN_READWRITE);
      sqlite::Transaction transaction(database);
      RenewStartingStyles(database);
      transaction.Commit();
    }
    directory_ = SqliteDirectory::Open(file_);
    admin_ = directory_->Login("admin", kPassword);
  }
};

TEST_F(StartingStylesTest, UnchangedOnesOfTheFirstSetAreRenewedAndOthersKept) {
  const std::string former = R"(<style font="Georgia" size="11" colour="#332f28" background="#faf6ec"/>)";
  Sql("UPDATE style SET definition = '" + former + "' WHERE name IN ('Paper', 'Slate')");
  Sql("UPDATE style SET name = 'Mine', name_key = 'mine' WHERE name = 'Slate'");
  Sql("UPDATE style SET definition = '<style font=\"Georgia\" size=\"12\"/>' WHERE name = 'Forest'");
  Sql("DELETE FROM style WHERE name = 'Notice'");
  const auto count = Styles().size();
  Reopen();
  const auto styles = Styles();
  EXPECT_EQ(styles.size(), count);
  for (const auto& style : styles) {
    SCOPED_TRACE(style.name);
    const bool renewed = style.name == "Paper" || style.name == "Mine";
    EXPECT_EQ(style.version, renewed ? 2 : 1);
    EXPECT_EQ(style.definition.find("Georgia") != std::string::npos, style.name == "Forest");
  }
  const auto journal = Journal(3);
  const auto renewals = std::ranges::count_if(journal, [&](const JournalRecord& row) {
    return row.kind == "style" && row.action == "change" && row.who.empty() &&
           row.before.find("Georgia") != std::string::npos;
  });
  EXPECT_EQ(renewals, 2);
  Reopen();
  EXPECT_EQ(Styles(), styles);
}

TEST_F(StartingStylesTest, ADirectoryWithoutStylesGetsAll) {
  const auto all = Styles();
  Sql("DELETE FROM style");
  Reopen();
  const auto added = Styles();
  ASSERT_EQ(added.size(), all.size());
  for (std::size_t i = 0; i < all.size(); ++i) {
    EXPECT_EQ(added[i].name, all[i].name);
    EXPECT_EQ(added[i].definition, all[i].definition);
  }
  EXPECT_EQ(directory_->Check(), std::vector<std::string>());
}

TEST_F(StartingStylesTest, TheDomainsOfAStyleAreAWindow) {
  const auto styles = Styles();
  const auto one = AddDomain("One"), two = AddDomain("Two");
  AddDomain("Three");
  for (const auto& domain : {one, two}) {
    DomainChange change;
    change.id = domain.id;
    change.version = domain.version;
    change.style = styles[2].id;
    directory_->ChangeDomain(admin_, change);
  }
  const Query query{.collection = Collection::StyleDomains, .scope = styles[2].id, .filter = "t"};
  const auto found = directory_->DomainPage(admin_, query, 0, 10);
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].name, "Two");
  EXPECT_EQ(directory_->Count(admin_, {.collection = Collection::StyleDomains, .scope = styles[2].id}), 2);
  EXPECT_EQ(directory_->Count(admin_, {.collection = Collection::StyleDomains, .scope = styles[1].id}), 0);
  EXPECT_TRUE(directory_->Contains(admin_, Collection::StyleDomains, styles[2].id, one.id));
  EXPECT_FALSE(directory_->Contains(admin_, Collection::StyleDomains, styles[1].id, one.id));
}

}  // namespace
}  // namespace mindloft::test
