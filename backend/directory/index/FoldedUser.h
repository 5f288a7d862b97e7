#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "backend/directory/FoldedText.h"
#include "backend/directory/Query.h"

namespace mindloft {

/// The orders of users; a key's place in FoldedUser is its order's number. The other orders are that of
/// names.
inline constexpr std::array kOrders = {Order::Name, Order::FullName, Order::Description};
inline constexpr std::size_t PlaceOf(Order order) {
  const auto place = static_cast<std::size_t>(order);
  return place < kOrders.size() ? place : static_cast<std::size_t>(Order::Name);
}

/// The folded listed texts of one user: what orders and searches compare.
struct FoldedUser {
  std::array<std::string, kOrders.size()> keys;
  bool operator==(const FoldedUser&) const = default;

  static FoldedUser Of(std::string_view name, std::string_view fullName, std::string_view description,
                       Folding folding = Folding::Neutral) {
    return {{FoldedText(name, folding), FoldedText(fullName, folding), FoldedText(description, folding)}};
  }
};

}  // namespace mindloft
