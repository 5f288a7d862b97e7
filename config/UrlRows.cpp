#include "config/UrlRows.h"

#include <algorithm>
#include <utility>

namespace mindloft {
namespace {

/// What a row shows of a URL: of a very long one the beginning, and signs in the place of characters that
/// would break the row apart or turn it around.
wxString Shown(const wxString& url) {
  constexpr std::size_t kLongest = 250;  // a native list cuts off little more
  constexpr wxUniChar::value_type kPictures = 0x2400, kDelete = 0x2421;
  wxString shown;
  for (const wxUniChar character : url.Left(kLongest)) {
    const auto value = character.GetValue();
    const bool turns = (value >= 0x202A && value <= 0x202E) || (value >= 0x2066 && value <= 0x2069);
    if (value < 0x20) {
      shown += wxUniChar(kPictures + value);
    } else if (value == 0x7F) {
      shown += wxUniChar(kDelete);
    } else if (turns) {
      shown += wxUniChar(0xFFFD);
    } else {
      shown += character;
    }
  }
  return url.length() > kLongest ? shown + wxUniChar(0x2026) : shown;
}

}  // namespace

UrlRows::UrlRows(std::vector<KnownUrl> known) : known_(std::move(known)) {
  Show();
}

void UrlRows::Show() {
  shown_.clear();
  for (std::size_t place = 0; place < known_.size(); ++place) {
    if (filter_.empty() || known_[place].url.Lower().Contains(filter_)) shown_.push_back(place);
  }
}

std::vector<ExplorerRow> UrlRows::Page(std::int64_t first, std::int64_t count) {
  std::vector<ExplorerRow> rows;
  for (auto row = std::max<std::int64_t>(first, 0); row < first + count && row < Count(); ++row) {
    const KnownUrl& known = known_[shown_[static_cast<std::size_t>(row)]];
    rows.push_back({Shown(known.url), known.key, -1});
  }
  return rows;
}

void UrlRows::Filter(const wxString& text) {
  filter_ = text.Lower();
  Show();
}

std::int64_t UrlRows::FindPrefix(const wxString& prefix, std::int64_t from) {
  const wxString sought = prefix.Lower();
  for (std::int64_t step = 0; step < Count(); ++step) {
    const std::int64_t row = (std::max<std::int64_t>(from, 0) + step) % Count();
    if (known_[shown_[static_cast<std::size_t>(row)]].url.Lower().StartsWith(sought)) return row;
  }
  return -1;
}

std::int64_t UrlRows::PositionOf(const wxString& key) {
  const auto found =
      std::find_if(shown_.begin(), shown_.end(), [&](std::size_t place) { return known_[place].key == key; });
  return found == shown_.end() ? -1 : found - shown_.begin();
}

const KnownUrl* UrlRows::Find(const wxString& key) const {
  const auto found =
      std::find_if(known_.begin(), known_.end(), [&](const KnownUrl& known) { return known.key == key; });
  return found == known_.end() ? nullptr : &*found;
}

std::size_t UrlRows::CountOf(const wxString& url) const {
  return static_cast<std::size_t>(
      std::count_if(known_.begin(), known_.end(), [&](const KnownUrl& known) { return known.url == url; }));
}

void UrlRows::Put(const KnownUrl& known) {
  const auto place = std::find_if(known_.begin(), known_.end(),
                                  [&](const KnownUrl& other) { return other.key == known.key; });
  if (place == known_.end())
    known_.push_back(known);
  else
    place->url = known.url;
  Show();
}

void UrlRows::Remove(const wxString& key) {
  std::erase_if(known_, [&](const KnownUrl& known) { return known.key == key; });
  Show();
}

}  // namespace mindloft
