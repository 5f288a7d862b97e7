#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "backend/directory/collation/LanguageRules.h"

struct UCollator;

namespace mindloft {

/// Orders texts by the rules of a language: the Unicode collation algorithm with the CLDR's tailorings (ICU).
/// Texts are given folded, so that case and width make no difference. Any thread may use it.
class Collator {
 public:
  /// Made at its first use and kept. CollationMissing when the library lacks the language's rules.
  static const Collator& Of(LanguageRules rules);
  /// Names the edition of all rules: orders made by another one may differ. It is known without a collator,
  /// which takes a start more than a millisecond to make: the library's data have the version of its headers.
  static std::string_view Edition();

  /// Keys compare as bytes, as the rules order their texts; they hold no zero. Equal keys are texts that the
  /// rules do not tell apart.
  std::string SortKey(std::string_view folded) const;
  /// What the sort keys begin with of all texts whose letters begin with these, accents aside where the
  /// language takes them for marks on a letter ("mu" begins "Müller" in German, not in Turkish).
  std::string PrefixKey(std::string_view folded) const;

 private:
  struct Close {
    void operator()(UCollator* collator) const;
  };
  using Handle = std::unique_ptr<UCollator, Close>;
  explicit Collator(LanguageRules rules);
  static Handle Open(LanguageRules rules);
  static std::string KeyOf(const Handle& collator, std::string_view folded);

  Handle whole_, letters_;
};

}  // namespace mindloft
