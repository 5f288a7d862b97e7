#include "backend/directory/collation/Collator.h"

#include <array>
#include <mutex>
#include <vector>

#include "backend/errors/Error.h"
#include "platform/CollationLibrary.h"

namespace mindloft {
namespace {

constexpr std::array kLocales = {"root", "zh", "ja", "ar", "tr"};
static_assert(kLocales.size() == kLanguageRules.size());

using Icu = platform::CollationLibrary;

constexpr UChar32 kReplacement = 0xFFFD;

std::string_view LocaleOf(LanguageRules rules) {
  return kLocales.at(static_cast<std::size_t>(rules));
}

void Require(UErrorCode status, LanguageRules rules) {
  // A fallback is a success with a warning for the library; for the order it is another one.
  const bool another = status == U_USING_DEFAULT_WARNING && rules != LanguageRules::Neutral;
  if (U_FAILURE(status) || another) {
    throw Error(ErrorNumber::CollationMissing,
                std::string(LocaleOf(rules)) + ": " + Icu::Get().errorName(status));
  }
}

}  // namespace

void Collator::Close::operator()(UCollator* collator) const {
  Icu::Get().close(collator);
}

const Collator& Collator::Of(LanguageRules rules) {
  static std::mutex mutex;
  static std::array<std::unique_ptr<Collator>, kLanguageRules.size()> collators;
  const std::lock_guard lock(mutex);
  auto& collator = collators.at(static_cast<std::size_t>(rules));
  if (!collator) collator.reset(new Collator(rules));
  return *collator;
}

std::string_view Collator::Edition() {
  return "icu " U_ICU_VERSION;
}

Collator::Collator(LanguageRules rules) : whole_(Open(rules)), letters_(Open(rules)) {
  Icu::Get().setStrength(letters_.get(), UCOL_PRIMARY);
}

Collator::Handle Collator::Open(LanguageRules rules) {
  const auto& icu = Icu::Get();
  UErrorCode status = U_ZERO_ERROR;
  Handle collator(icu.open(LocaleOf(rules).data(), &status));
  Require(status, rules);
  // Folded texts are composed, but not every composed text can be read without looking at its marks' order.
  icu.setAttribute(collator.get(), UCOL_NORMALIZATION_MODE, UCOL_ON, &status);
  Require(status, rules);
  return collator;
}

std::string Collator::KeyOf(const Handle& collator, std::string_view folded) {
  // Texts are short and asked for by the million: the room is kept.
  thread_local std::vector<UChar> text;
  thread_local std::vector<std::uint8_t> key(128);
  text.resize(folded.size() + 1);
  UErrorCode status = U_ZERO_ERROR;
  std::int32_t length = 0;
  const auto& icu = Icu::Get();
  icu.fromUtf8(text.data(), static_cast<std::int32_t>(text.size()), &length, folded.data(),
               static_cast<std::int32_t>(folded.size()), kReplacement, nullptr, &status);
  if (U_FAILURE(status)) throw Error(ErrorNumber::Unexpected, icu.errorName(status));
  for (;;) {
    const auto needed = static_cast<std::size_t>(icu.getSortKey(
        collator.get(), text.data(), length, key.data(), static_cast<std::int32_t>(key.size())));
    if (needed == 0) throw std::bad_alloc();
    if (needed <= key.size()) return {key.begin(), key.begin() + static_cast<std::ptrdiff_t>(needed) - 1};
    key.resize(needed);
  }
}

std::string Collator::SortKey(std::string_view folded) const {
  return KeyOf(whole_, folded);
}

std::string Collator::PrefixKey(std::string_view folded) const {
  return KeyOf(letters_, folded);
}

}  // namespace mindloft
