#include "controls/numbers/PictureSection.h"

#include <algorithm>
#include <cmath>

#include "controls/numbers/NumberText.h"
#include "controls/numbers/RoundedNumber.h"

namespace mindloft {

PictureSection::PictureSection(const wxString& text, std::size_t& at) {
  constexpr int PercentShift = 2;
  bool quoted = false;
  for (; at < text.length(); ++at) {
    const wxUniChar each = text[at];
    if (each == '"') {
      quoted = !quoted;
    } else if (quoted) {
      AddLiteral(each);
    } else if (each == ';') {
      ++at;
      break;
    } else if (each == '\\' && at + 1 < text.length()) {
      AddLiteral(text[++at]);
    } else if (each == '0' || each == '#') {
      AddPlace(each == '0' ? Kind::Zero : Kind::Digit);
    } else if (each == '.' && !hasPoint_) {
      CloseWholePart();
      hasPoint_ = true;
      tokens_.push_back({Kind::Point, {}});
    } else if (each == ',' && wholePlaces_ > 0 && !hasPoint_) {
      ++commas_;
    } else {
      if (each == '%') shift_ += PercentShift;
      AddLiteral(each);
    }
  }
  if (!hasPoint_) CloseWholePart();
}

void PictureSection::AddLiteral(wxUniChar character) {
  if (tokens_.empty() || tokens_.back().kind != Kind::Literal) tokens_.push_back({Kind::Literal, {}});
  tokens_.back().literal += character;
}

void PictureSection::AddPlace(Kind kind) {
  tokens_.push_back({kind, {}});
  if (hasPoint_) {
    ++fractionPlaces_;
    if (kind == Kind::Zero) leastFraction_ = fractionPlaces_;
    return;
  }
  ++wholePlaces_;
  if (leastWhole_ > 0 || kind == Kind::Zero) ++leastWhole_;
  if (commas_ > 0) grouped_ = true;
  commas_ = 0;
}

void PictureSection::CloseWholePart() {
  // Commas behind the last place divide by a thousand each.
  constexpr int ThousandShift = 3;
  shift_ -= ThousandShift * static_cast<int>(commas_);
  commas_ = 0;
}

bool PictureSection::ShowsZero(double number) const {
  return RoundedNumber(number, shift_, fractionPlaces_).IsZero();
}

wxString PictureSection::Format(double number) const {
  const RoundedNumber rounded(number, shift_, fractionPlaces_);
  wxString result;
  std::size_t place = 0;
  for (const Token& token : tokens_) {
    if (token.kind == Kind::Literal) {
      result += token.literal;
    } else if (token.kind == Kind::Point) {
      // A picture without whole places shows them all the same.
      if (wholePlaces_ == 0) result += rounded.whole;
      result += '.';
    } else if (place < wholePlaces_) {
      FormatWhole(result, place++, rounded.whole);
    } else {
      FormatFraction(result, place++ - wholePlaces_, rounded.fraction);
    }
  }
  return result;
}

void PictureSection::FormatWhole(wxString& result, std::size_t index, const std::string& digits) const {
  constexpr std::size_t GroupSize = 3;
  // Counted from the right, as the digits are. The first place takes all that have no place of their own.
  const std::size_t last = wholePlaces_ - 1 - index;
  const std::size_t first = index == 0 ? std::max(digits.size(), last + 1) : last + 1;
  for (std::size_t position = first; position-- > last;) {
    if (position < digits.size())
      result += digits[digits.size() - 1 - position];
    else if (position < leastWhole_)
      result += '0';
    else
      continue;
    if (grouped_ && position > 0 && position % GroupSize == 0) result += ',';
  }
}

void PictureSection::FormatFraction(wxString& result, std::size_t index, const std::string& digits) const {
  const std::size_t significant = digits.find_last_not_of('0') + 1;
  if (index < std::max(significant, leastFraction_)) result += digits[index];
}

std::optional<double> PictureSection::Read(const wxString& text, LoneComma comma) const {
  const auto first = std::find_if(tokens_.begin(), tokens_.end(),
                                  [](const Token& token) { return token.kind != Kind::Literal; });
  if (first == tokens_.end()) return std::nullopt;
  // Literals that follow each other are one token.
  const wxString before = first == tokens_.begin() ? wxString() : tokens_.front().literal;
  const wxString after = tokens_.back().kind == Kind::Literal ? tokens_.back().literal : wxString();
  if (text.length() < before.length() + after.length()) return std::nullopt;
  wxString digits;
  if (!text.StartsWith(before, &digits) || !digits.EndsWith(after, &digits)) return std::nullopt;
  const auto shown = ReadNumber(digits, comma);
  if (!shown) return std::nullopt;
  const double number = shift_ > 0 ? *shown / std::pow(10.0, shift_) : *shown * std::pow(10.0, -shift_);
  if (!std::isfinite(number)) return std::nullopt;
  return number;
}

}  // namespace mindloft
