#include "tests/controls/explorer/FakeRows.h"

#include <algorithm>
#include <iterator>

#include "backend/errors/Error.h"

namespace mindloft::test {

namespace {

constexpr std::size_t kDigits = 7;

}  // namespace

wxString FakeRows::Name(std::int64_t number) {
  return wxString::Format("%07lld", static_cast<long long>(number));
}

void FakeRows::ForgetQuestions() {
  rowsAsked = lastAsked = 0;
  firstAsked = rows_;
}

void FakeRows::MayFail() {
  if (!failing) return;
  ++failures;
  throw Error(ErrorNumber::Storage, "the source fails");
}

std::pair<std::int64_t, std::int64_t> FakeRows::NumbersFrom(const wxString& prefix) const {
  long long number = 0;
  if (prefix.empty()) return {0, rows_};
  if (prefix.length() > kDigits || !prefix.ToLongLong(&number)) return {0, 0};
  std::int64_t width = 1;
  for (std::size_t i = prefix.length(); i < kDigits; ++i) width *= 10;
  return {std::min<std::int64_t>(number * width, rows_), std::min<std::int64_t>((number + 1) * width, rows_)};
}

std::int64_t FakeRows::RemovedBetween(std::int64_t first, std::int64_t end) const {
  return std::distance(removed.lower_bound(first), removed.lower_bound(end));
}

std::int64_t FakeRows::Count() {
  MayFail();
  const auto [first, end] = NumbersFrom(filter_);
  return end - first - RemovedBetween(first, end);
}

std::vector<ExplorerRow> FakeRows::Page(std::int64_t first, std::int64_t count) {
  MayFail();
  rowsAsked += count;
  firstAsked = std::min(firstAsked, first);
  lastAsked = std::max(lastAsked, first + count - 1);
  const auto [low, end] = NumbersFrom(filter_);
  std::vector<ExplorerRow> rows;
  std::int64_t number = descending_ ? end - 1 - first : low + first;
  const std::int64_t step = descending_ ? -1 : 1;
  // The tests remove few rows, so that stepping over them one by one will do.
  for (const std::int64_t gone : removed)
    if (!descending_ && gone >= low && gone <= number) ++number;
  for (; static_cast<std::int64_t>(rows.size()) < count && number >= low && number < end; number += step)
    if (!removed.count(number)) rows.push_back({Name(number) + "\x01" + "second", Key(number), 0});
  return rows;
}

void FakeRows::Sort(int, bool descending) {
  MayFail();
  ++sorts;
  descending_ = descending;
}

void FakeRows::Filter(const wxString& text) {
  MayFail();
  ++filters;
  filter_ = text;
}

std::int64_t FakeRows::PositionOf(const wxString& key) {
  MayFail();
  long long number = -1;
  const auto [low, end] = NumbersFrom(filter_);
  if (!key.Mid(1).ToLongLong(&number) || number < low || number >= end || removed.count(number)) return -1;
  return descending_ ? end - 1 - number - RemovedBetween(number, end)
                     : number - low - RemovedBetween(low, number);
}

std::int64_t FakeRows::FindPrefix(const wxString& prefix, std::int64_t from) {
  MayFail();
  const auto [first, end] = NumbersFrom(prefix);
  const std::int64_t start = first < end ? PositionOf(Key(first)) : -1;
  return start >= 0 && from > start && from < start + (end - first) ? from : start;
}

}  // namespace mindloft::test
