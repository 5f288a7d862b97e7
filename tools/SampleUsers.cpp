#include "tools/SampleUsers.h"

#include <charconv>

namespace mindloft {
namespace {

void AppendNumber(std::string& text, std::uint64_t number) {
  char digits[20];
  const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  text.append(digits, end);
}

}  // namespace

const UserRecord& SampleUsers::Next() {
  // Two of three are of the Latin script.
  const auto& locale = random_.Pick(random_.Below(3) < 2 ? LatinSampleLocales() : OtherSampleLocales());
  ++number_;
  WriteNames(locale);
  user_.department = random_.Pick(locale.departments);
  user_.email.assign(user_.name).append("@example.org");
  WriteTelephone(locale);
  WriteDescription(locale);
  user_.enabled = random_.Below(40) != 0;
  return user_;
}

void SampleUsers::WriteNames(const SampleLocale& locale) {
  const auto& given = random_.Pick(locale.given);
  const auto& family = random_.Pick(locale.family);
  const auto& first = locale.familyFirst ? family : given;
  const auto& second = locale.familyFirst ? given : family;
  user_.fullName.assign(first.text).append(locale.between).append(second.text);
  user_.name.assign(given.latin).append(".").append(family.latin);
  AppendNumber(user_.name, number_);
}

void SampleUsers::WriteTelephone(const SampleLocale& locale) {
  user_.telephone.assign(locale.telephone).append(" 555 ");
  AppendNumber(user_.telephone, 1000 + random_.Below(9000));
}

void SampleUsers::WriteDescription(const SampleLocale& locale) {
  // Some have none.
  if (random_.Below(6) == 0) {
    user_.description.clear();
    return;
  }
  user_.description = random_.Pick(locale.duties);
  user_.description.append(" (");
  AppendNumber(user_.description, 1 + random_.Below(12));
  user_.description += '.';
  AppendNumber(user_.description, 100 + random_.Below(400));
  user_.description += ')';
}

}  // namespace mindloft
