#include "editors/NameRules.h"

#include "backend/directory/FoldedText.h"
#include "backend/directory/collation/Collator.h"
#include "editors/SessionLanguage.h"

namespace mindloft {

NameRules NameRules::OfSession() {
  NameRules rules;
  rules.rules_ = RulesOf(SessionLanguage());
  return rules;
}

std::string NameRules::Folded(std::string_view utf8) const {
  return FoldedText(utf8, FoldingOf(rules_));
}

std::string NameRules::SortKey(std::string_view utf8) const {
  return Collator::Of(rules_).SortKey(Folded(utf8));
}

std::string NameRules::PrefixKey(std::string_view utf8) const {
  return Collator::Of(rules_).PrefixKey(Folded(utf8));
}

}  // namespace mindloft
