#include "editors/NameRules.h"

#include "backend/directory/FoldedText.h"
#include "backend/directory/collation/Collator.h"
#include "backend/tessaline/Services.h"

namespace mindloft {

NameRules NameRules::OfSession() {
  NameRules rules;
  if (const auto connection = GetConnection()) rules.rules_ = RulesOf(connection->Language());
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
