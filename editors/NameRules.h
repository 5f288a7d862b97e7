#pragma once

#include <string>
#include <string_view>

#include "backend/directory/collation/LanguageRules.h"

namespace mindloft {

/// How lists that are held in memory order and search names: as the directory does it in the session of the
/// login.
class NameRules {
 public:
  /// Those of now; another language of the session has others.
  static NameRules OfSession();

  /// The form in which a text is searched, and searched for.
  std::string Folded(std::string_view utf8) const;
  /// Keys compare as bytes, as the names are ordered.
  std::string SortKey(std::string_view utf8) const;
  /// What the sort keys of all names begin with that begin like this.
  std::string PrefixKey(std::string_view utf8) const;

  bool operator==(const NameRules&) const = default;

 private:
  LanguageRules rules_ = LanguageRules::Neutral;
};

}  // namespace mindloft
