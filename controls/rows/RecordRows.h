#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "backend/corvane/View.h"
#include "backend/tessaline/Text.h"
#include "controls/explorer/ExplorerRows.h"

namespace mindloft {

/// The character between the fields of a row.
inline constexpr wxUniChar::value_type kFieldSeparator = 1;

/// Joins the fields of one row.
wxString JoinFields(const std::vector<wxString>& fields);

/// The identifier of the object that such a row shows.
inline ObjectId IdOf(const ExplorerRow& row) {
  return Corvane::IdFromText(ToUtf8(row.key));
}

/// Rows of an explorer list over one collection of the directory. Nothing is kept here: every call reads the
/// window of rows that it needs.
template <typename Record>
class RecordRows : public ExplorerRows {
 public:
  std::int64_t Count() override { return view_.Count(); }
  std::int64_t TotalCount() override { return view_.TotalCount(); }

  std::vector<ExplorerRow> Page(std::int64_t first, std::int64_t count) override {
    std::vector<ExplorerRow> rows;
    const auto records = view_.Page(first, count);
    rows.reserve(records.size());
    for (const Record& record : records)
      rows.push_back({JoinFields(Fields(record)), ToWx(Corvane::IdText(record.id)), Image(record)});
    return rows;
  }

  bool CanSort(int column) const override { return OrderOf(column).has_value(); }
  void Sort(int column, bool descending) override {
    auto options = view_.Options();
    options.order = OrderOf(column).value_or(Order::Name);
    options.descending = descending;
    view_.SetOptions(options);
  }

  bool CanFilter() const override { return true; }
  void Filter(const wxString& text) override {
    auto options = view_.Options();
    options.filter = ToUtf8(text);
    view_.SetOptions(options);
  }

  std::int64_t FindPrefix(const wxString& prefix, std::int64_t from) override {
    return view_.FindPrefix(ToUtf8(prefix), from);
  }
  std::int64_t PositionOf(const wxString& key) override {
    return view_.PositionOf(Corvane::IdFromText(ToUtf8(key)));
  }
  std::vector<std::int64_t> PositionsOf(const std::vector<wxString>& keys) override {
    std::vector<ObjectId> ids;
    ids.reserve(keys.size());
    for (const wxString& key : keys) ids.push_back(Corvane::IdFromText(ToUtf8(key)));
    return view_.PositionsOf(ids);
  }

 protected:
  /// `orders`: the order of each column; none where the directory offers none.
  RecordRows(Corvane::View<Record> view, std::vector<std::optional<Order>> orders)
      : view_(std::move(view)), orders_(std::move(orders)) {}

  virtual std::vector<wxString> Fields(const Record& record) const = 0;
  virtual int Image(const Record& record) const = 0;

 private:
  std::optional<Order> OrderOf(int column) const {
    if (column < 0 || column >= static_cast<int>(orders_.size())) return std::nullopt;
    return orders_[static_cast<std::size_t>(column)];
  }

  Corvane::View<Record> view_;
  std::vector<std::optional<Order>> orders_;
};

}  // namespace mindloft
