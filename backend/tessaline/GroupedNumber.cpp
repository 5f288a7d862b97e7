#include "backend/tessaline/GroupedNumber.h"

#include <string>

#include "backend/tessaline/Services.h"

namespace mindloft {

namespace {

constexpr int kThousandsSeparator = 61101;

}  // namespace

wxString GroupedNumber(std::int64_t number) {
  const wxString separator = GetResource().GetString(kThousandsSeparator);
  const std::string digits = std::to_string(number);
  wxString grouped;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && digits[i - 1] != '-' && (digits.size() - i) % 3 == 0) grouped += separator;
    grouped += digits[i];
  }
  return grouped;
}

}  // namespace mindloft
