#include <gtest/gtest.h>

#include "controls/texts/TextChange.h"
#include "controls/texts/TextUndo.h"
#include "platform/SystemLocale.h"

namespace mindloft::test {
namespace {

const wxString kFace = wxString::FromUTF8("😀");
const wxString kOtherFace = wxString::FromUTF8("😁");
const wxString kFamily = wxString::FromUTF8("👨‍👩‍👧");
const wxString kAccented = wxString::FromUTF8("e\xCC\x81");

TEST(TextChangeTest, DifferencesPartNoCharacterAndCanBeTakenBack) {
  const wxString texts[] = {"",
                            "a",
                            "ab",
                            "aab",
                            "xaby",
                            kFace,
                            kOtherFace,
                            "a" + kFace,
                            kFace + kOtherFace,
                            kOtherFace + kFace,
                            "a\nb",
                            wxString::FromUTF8("שלום"),
                            "b" + kFace + "b"};
  for (const wxString& before : texts) {
    for (const wxString& after : texts) {
      const TextChange change = DifferenceOf(before, after);
      EXPECT_EQ(change.Applied(before), after);
      EXPECT_EQ(change.Reverted(after), before);
      EXPECT_EQ(change.IsNone(), before == after);
      // Half a character would become another one on the way through UTF-8.
      EXPECT_EQ(wxString::FromUTF8(change.inserted.utf8_string()), change.inserted);
      EXPECT_EQ(wxString::FromUTF8(change.removed.utf8_string()), change.removed);
    }
  }
  EXPECT_EQ(DifferenceOf(kFace, kOtherFace).inserted, kOtherFace);
}

TEST(TextChangeTest, RulesLetIn) {
  const platform::FakeSystemLocale english(1033);
  const TextRules line{};
  const TextRules lines{false, true, 0};
  const TextRules number{true, false, 0};
  const TextRules numberLines{true, true, 0};
  const auto atMost = [](int characters) { return TextRules{false, false, characters}; };
  struct Case {
    TextRules rules;
    wxString inserted;
    std::size_t others;
    wxString permitted;
  };
  const Case cases[] = {
      {line, "one\ntwo\r\n\r\nthree\n", 0, "one two three"},
      {line, "\n\na\tb", 0, "a b"},
      {line, wxString::FromUTF8("a\u2028b"), 0, "a b"},
      {line, wxString("a\0b\x01\x7F", 5), 0, "ab"},
      {line, wxString::FromUTF8("\u200Fשלום\u202E"), 0, wxString::FromUTF8("\u200Fשלום\u202E")},
      {lines, "one\r\ntwo\tthree\n", 0, "one\ntwo\tthree\n"},
      {number, "12.5", 0, "12.5"},
      {number, "-3", 0, "3"},
      {number, "a1b2\n", 0, "12"},
      {number, wxString::FromUTF8("１２"), 0, ""},
      {number,
       wxString::FromUTF8("1\xCC\x81"
                          "😀2"),
       0, "12"},
      {numberLines, "1\n2", 0, "12"},
      {atMost(5), "abcdef", 0, "abcde"},
      {atMost(5), "abcdef", 3, "ab"},
      {atMost(5), "abc", 5, ""},
      {atMost(5), "abc", 9, ""},
      {atMost(2), kFace + kFace + kFace, 0, kFace + kFace},
      {atMost(2), "a" + kAccented, 0, "a"},
      {atMost(3), "a" + kAccented + "b", 0, "a" + kAccented},
      {atMost(4), kFamily, 0, ""},
      {atMost(6), kFamily + kFace, 0, kFamily + kFace},
      {atMost(5), kFamily + kFace, 0, kFamily},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(Permitted(each.inserted, each.others, each.rules).utf8_string(), each.permitted.utf8_string())
        << each.inserted << " beside " << each.others << " of " << each.rules.maxLength;
  }
  const platform::FakeSystemLocale japanese(1041);
  EXPECT_EQ(Permitted(wxString::FromUTF8("１２．５円"), 0, number), "12.5");
}

TEST(TextUndoTest, TakesBackWordsAndRepeats) {
  TextUndo undo;
  wxString text;
  const auto make = [&](const wxString& after) {
    undo.Record(DifferenceOf(text, after));
    text = after;
  };
  const auto back = [&] {
    const auto change = undo.Undo();
    if (change) text = change->Reverted(text);
    return text;
  };
  const auto again = [&] {
    const auto change = undo.Redo();
    if (change) text = change->Applied(text);
    return text;
  };
  for (const char* typed : {"o", "on", "one", "one ", "one t", "one tw", "one two"}) make(typed);
  EXPECT_EQ(back(), "one");
  EXPECT_EQ(back(), "");
  EXPECT_EQ(back(), "");
  EXPECT_FALSE(undo.CanUndo());
  EXPECT_EQ(again(), "one");
  make("one!");
  EXPECT_FALSE(undo.CanRedo()) << "another way was taken";
  make("pasted");
  make("");
  EXPECT_EQ(back(), "pasted");
  EXPECT_EQ(back(), "one!");
  EXPECT_EQ(again(), "pasted");
  // Large changes push out old ones, but the last can always be taken back.
  make(wxString('x', 5'000'000));
  EXPECT_EQ(back(), "pasted");
  EXPECT_FALSE(undo.CanUndo());
}

}  // namespace
}  // namespace mindloft::test
