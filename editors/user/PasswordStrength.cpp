#include "editors/user/PasswordStrength.h"

#include <cmath>

namespace mindloft {
namespace {

constexpr double kFairBits = 50;
constexpr double kStrongBits = 75;

/// Of the kinds of characters: capitals, small letters, digits, signs, all others.
enum Kind { Capital, Small, Digit, Sign, Other, KindCount };
constexpr int kKindSizes[] = {26, 26, 10, 33, 100};

Kind KindOf(wxUint32 character) {
  if (character >= 'A' && character <= 'Z') return Capital;
  if (character >= 'a' && character <= 'z') return Small;
  if (character >= '0' && character <= '9') return Digit;
  return character < 0x80 ? Sign : Other;
}

bool LeadsOn(wxUint32 last, wxUint32 character) {
  return character == last || character == last + 1 || character + 1 == last;
}

}  // namespace

PasswordStrength StrengthOf(const wxString& password, const wxString& userName) {
  if (!userName.empty() && password.Lower().Contains(userName.Lower())) return PasswordStrength::Weak;
  bool used[KindCount] = {};
  int counted = 0;
  wxUint32 last = 0;
  for (const wxUniChar each : password) {
    const wxUint32 character = each.GetValue();
    used[KindOf(character)] = true;
    if (last == 0 || !LeadsOn(last, character)) ++counted;
    last = character;
  }
  int alphabet = 0;
  for (int kind = 0; kind < KindCount; ++kind)
    if (used[kind]) alphabet += kKindSizes[kind];
  const double bits = alphabet > 0 ? counted * std::log2(alphabet) : 0;
  if (bits < kFairBits) return PasswordStrength::Weak;
  return bits < kStrongBits ? PasswordStrength::Fair : PasswordStrength::Strong;
}

}  // namespace mindloft
