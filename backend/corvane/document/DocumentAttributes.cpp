#include "backend/corvane/document/DocumentAttributes.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>

#include "platform/Unicode.h"

namespace mindloft::Corvane {
namespace {

constexpr int kFarthest = 20'000;  ///< two metres, in tenths of a millimetre
constexpr int kMostTabStops = 60;
constexpr std::size_t kLongestName = 64;
constexpr int kBitmapBullet = 0x40;

std::optional<int> NumberOf(std::string_view text) {
  int number = 0;
  const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (problem != std::errc() || end != text.data() + text.size() || text.empty()) return std::nullopt;
  return number;
}

template <int least, int most>
bool IsBetween(std::string_view value) {
  const auto number = NumberOf(value);
  return number && *number >= least && *number <= most;
}

bool IsColour(std::string_view value) {
  return value.size() == 7 && value.front() == '#' &&
         value.find_first_not_of("0123456789ABCDEFabcdef", 1) == std::string_view::npos;
}

bool IsName(std::string_view value) {
  return value.size() <= kLongestName && platform::IsUtf8(value) && !platform::HasControlCharacter(value);
}

bool IsBulletStyle(std::string_view value) {
  // A bitmap's name would be looked up.
  return IsBetween<0, 0x7FFF>(value) && (*NumberOf(value) & kBitmapBullet) == 0;
}

bool IsStandardBullet(std::string_view value) {
  return value.size() <= kLongestName &&
         value.find_first_not_of("abcdefghijklmnopqrstuvwxyz/") == std::string_view::npos;
}

bool IsTabStops(std::string_view value) {
  if (value.empty()) return true;
  for (int stops = 0; stops < kMostTabStops; ++stops) {
    const auto comma = value.find(',');
    if (!IsBetween<0, kFarthest>(value.substr(0, comma))) return false;
    if (comma == std::string_view::npos) return true;
    value.remove_prefix(comma + 1);
  }
  return false;
}

/// Tenths of a millimetre, pixels, per cent, points or hundredths of a point; with or without the mark of a
/// value that is set. The component asserts for others.
bool IsUnit(std::string_view value) {
  constexpr int kIsSet = 0x1000;
  constexpr int kUnits[] = {0, 1, 2, 4, 8, 0x100};
  const auto flags = NumberOf(value);
  return flags && *flags >= 0 &&
         std::find(std::begin(kUnits), std::end(kUnits), *flags & ~kIsSet) != std::end(kUnits);
}

bool IsFontStyle(std::string_view value) {
  return value == "90" || value == "93" || value == "94";
}

/// "5,4098": a number and the flags that tell its unit.
template <int most>
bool IsDimension(std::string_view value) {
  const auto comma = value.find(',');
  return comma != std::string_view::npos && IsBetween<0, most>(value.substr(0, comma)) &&
         IsUnit(value.substr(comma + 1));
}

bool IsVerticalPlace(std::string_view value) {
  return value == "none" || value == "top" || value == "centre" || value == "bottom";
}

using Check = bool (*)(std::string_view);

struct Known {
  std::string_view name;
  AttributeOwner owner;
  Check check;
};

constexpr auto kRun = AttributeOwner::Run;
constexpr auto kParagraph = AttributeOwner::Paragraph;
constexpr auto kBox = AttributeOwner::Box;

constexpr Known kKnown[] = {
    {"textcolor", kRun, IsColour},
    {"bgcolor", kRun, IsColour},
    {"fontpointsize", kRun, IsBetween<1, 400>},
    {"fontfamily", kRun, IsBetween<70, 76>},
    {"fontstyle", kRun, IsFontStyle},
    {"fontweight", kRun, IsBetween<1, 1000>},
    {"fontunderlined", kRun, IsBetween<0, 1>},
    {"fontface", kRun, IsName},
    {"characterstyle", kRun, IsName},
    {"texteffects", kRun, IsBetween<0, 0xFFF>},
    {"texteffectflags", kRun, IsBetween<0, 0xFFF>},
    {"alignment", kParagraph, IsBetween<0, 4>},
    {"leftindent", kParagraph, IsBetween<0, kFarthest>},
    {"leftsubindent", kParagraph, IsBetween<-kFarthest, kFarthest>},
    {"rightindent", kParagraph, IsBetween<0, kFarthest>},
    {"parspacingbefore", kParagraph, IsBetween<0, 2000>},
    {"parspacingafter", kParagraph, IsBetween<0, 2000>},
    {"linespacing", kParagraph, IsBetween<5, 100>},
    {"bulletstyle", kParagraph, IsBulletStyle},
    {"bulletnumber", kParagraph, IsBetween<0, 9999>},
    {"bulletsymbol", kParagraph, IsBetween<33, 0xD7FF>},
    {"bulletfont", kParagraph, IsName},
    {"bulletname", kParagraph, IsStandardBullet},
    {"bullettext", kParagraph, IsName},
    {"parstyle", kParagraph, IsName},
    {"liststyle", kParagraph, IsName},
    {"outlinelevel", kParagraph, IsBetween<0, 9>},
    {"tabs", kParagraph, IsTabStops},
    {"pagebreak", kParagraph, IsBetween<0, 1>},
    {"width", kBox, IsDimension<kFarthest>},
    {"verticalalignment", kBox, IsVerticalPlace},
};

/// "margin-left", "border-top-width": what stands for each of the four sides.
struct KnownOfSides {
  std::string_view before;
  std::string_view after;
  Check check;
};

constexpr KnownOfSides kKnownOfSides[] = {
    {"margin-", "", IsDimension<1000>},      {"padding-", "", IsDimension<1000>},
    {"border-", "-style", IsBetween<0, 10>}, {"border-", "-color", IsColour},
    {"border-", "-width", IsDimension<100>},
};

constexpr std::string_view kSides[] = {"left", "right", "top", "bottom"};

Check CheckOfSide(std::string_view name) {
  for (const KnownOfSides& known : kKnownOfSides) {
    if (!name.starts_with(known.before) || !name.ends_with(known.after)) continue;
    if (name.size() < known.before.size() + known.after.size()) continue;
    const auto side =
        name.substr(known.before.size(), name.size() - known.before.size() - known.after.size());
    if (std::find(std::begin(kSides), std::end(kSides), side) != std::end(kSides)) return known.check;
  }
  return nullptr;
}

}  // namespace

bool IsSafeAttribute(AttributeOwner owner, std::string_view name, std::string_view value) {
  const auto known = std::find_if(std::begin(kKnown), std::end(kKnown),
                                  [&](const Known& each) { return each.name == name; });
  if (known != std::end(kKnown)) return known->owner <= owner && known->check(value);
  if (owner != AttributeOwner::Box) return false;
  const Check check = CheckOfSide(name);
  return check && check(value);
}

}  // namespace mindloft::Corvane
