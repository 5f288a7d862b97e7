#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "backend/corvane/Session.h"

namespace mindloft::Corvane {

/// Which rows of a collection a list shows, and how.
struct ViewOptions {
  Order order = Order::Name;
  bool descending = false;
  std::string filter;
};

/// A window on one collection, for lists of any length: rows are read by position, a page at a time, as
/// records: UserRecord, RoleRecord, DomainRecord, GroupRecord, StyleRecord or JournalRecord.
template <typename Record>
class View {
 public:
  View(std::shared_ptr<Session> session, Collection collection, ObjectId scope = 0)
      : session_(std::move(session)), query_{collection, scope, Order::Name, false, {}} {}

  void SetOptions(const ViewOptions& options);
  ViewOptions Options() const { return {query_.order, query_.descending, query_.filter}; }
  std::int64_t Count() const;
  /// The number of rows without the filter.
  std::int64_t TotalCount() const;
  std::vector<Record> Page(std::int64_t first, std::int64_t count) const;
  /// See Directory::FindPrefix and Directory::PositionOf.
  std::int64_t FindPrefix(const std::string& prefix, std::int64_t from) const;
  std::int64_t PositionOf(ObjectId id) const;
  std::vector<std::int64_t> PositionsOf(const std::vector<ObjectId>& ids) const;

 private:
  std::shared_ptr<Session> session_;
  Query query_;
};

using UserView = View<UserRecord>;
using RoleView = View<RoleRecord>;
using DomainView = View<DomainRecord>;
using GroupView = View<GroupRecord>;
using StyleView = View<StyleRecord>;
using JournalView = View<JournalRecord>;

}  // namespace mindloft::Corvane
