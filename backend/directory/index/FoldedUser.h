#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "backend/directory/FoldedText.h"
#include "backend/directory/Query.h"

namespace mindloft {

/// The offered orders; a key's place in FoldedUser is its order's number.
inline constexpr std::array kOrders = {Order::Name, Order::FullName, Order::Description};
inline constexpr std::size_t PlaceOf(Order order) {
  return static_cast<std::size_t>(order);
}

/// The folded listed texts of one user: what orders and searches compare.
struct FoldedUser {
  std::array<std::string, kOrders.size()> keys;
  bool operator==(const FoldedUser&) const = default;

  static FoldedUser Of(std::string_view name, std::string_view fullName, std::string_view description) {
    return {{FoldedText(name), FoldedText(fullName), FoldedText(description)}};
  }
};

}  // namespace mindloft
