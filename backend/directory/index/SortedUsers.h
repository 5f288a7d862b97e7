#pragma once

#include <array>
#include <cstddef>

#include "backend/directory/index/SearchTexts.h"
#include "backend/directory/index/Selections.h"
#include "backend/directory/index/UserOrder.h"

namespace mindloft {

/// All users as the rules of one language order and search them.
class SortedUsers {
 public:
  SortedUsers(sqlite::Database& database, LanguageRules rules, std::size_t blockSize)
      : texts_(database, FoldingOf(rules)),
        orders_{UserOrder(database, texts_, rules, Order::Name, blockSize),
                UserOrder(database, texts_, rules, Order::FullName, blockSize),
                UserOrder(database, texts_, rules, Order::Description, blockSize)},
        selections_(database, texts_, orders_[PlaceOf(Order::Name)]) {}
  SortedUsers(const SortedUsers&) = delete;
  SortedUsers& operator=(const SortedUsers&) = delete;

  /// Drops what is remembered of the file.
  void Forget() {
    for (auto& order : orders_) order.Forget();
    selections_.Forget();
  }
  SearchTexts& Texts() { return texts_; }
  UserOrder& OrderOf(Order order) { return orders_.at(PlaceOf(order)); }
  std::array<UserOrder, kOrders.size()>& Orders() { return orders_; }
  Selections& Selected() { return selections_; }

 private:
  SearchTexts texts_;
  std::array<UserOrder, kOrders.size()> orders_;
  Selections selections_;
};

}  // namespace mindloft
