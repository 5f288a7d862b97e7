#include "backend/directory/index/IndexCheck.h"

#include <algorithm>

#include "backend/directory/index/IndexImage.h"
#include "backend/directory/index/OrderBlocks.h"
#include "backend/errors/Error.h"

namespace mindloft {
namespace {

constexpr const char* kOrderNames[] = {"name", "full name", "description"};

void CheckTexts(sqlite::Database& database, const IndexImage& image, std::vector<std::string>& faults) {
  auto select = database.Prepare("SELECT texts FROM user_text WHERE chunk=?");
  std::int64_t expected = 0;
  image.ForEachChunk([&](std::int64_t number, const std::string& stored) {
    ++expected;
    select->Reset();
    select->BindAll(number);
    if (select->Step() && select->BlobView(0) == stored) return;
    faults.push_back("The search texts in block " + std::to_string(number) + " differ from the users.");
  });
  auto count = database.Prepare("SELECT count(*) FROM user_text");
  count->Step();
  if (count->Int(0) != expected) {
    faults.push_back("The search texts have " + std::to_string(count->Int(0)) + " blocks instead of " +
                     std::to_string(expected) + ".");
  }
}

/// Where the stored order first differs from the right one; nothing when it does not.
std::string DifferenceIn(OrderBlocks& blocks, const std::vector<PackedId>& expected) {
  std::size_t position = 0;
  for (const auto& block : blocks.ReadMap()) {
    auto ids = blocks.Read(block);
    auto rest = expected.size() - position;
    if (ids.size() > rest) return "it holds more than " + std::to_string(expected.size()) + " users";
    auto begin = expected.begin() + static_cast<std::ptrdiff_t>(position);
    auto differ = std::mismatch(ids.begin(), ids.end(), begin);
    if (differ.first != ids.end()) {
      return "it has user " + std::to_string(*differ.first) + " instead of " +
             std::to_string(*differ.second) + " in position " +
             std::to_string(differ.second - expected.begin());
    }
    position += ids.size();
  }
  if (position == expected.size()) return {};
  return "it holds " + std::to_string(position) + " of " + std::to_string(expected.size()) + " users";
}

void CheckOrder(sqlite::Database& database, const IndexImage& image, Order order,
                std::vector<std::string>& faults) {
  const std::string name = kOrderNames[PlaceOf(order)];
  try {
    OrderBlocks blocks(database, order);
    if (auto difference = DifferenceIn(blocks, image.Sorted(order)); !difference.empty()) {
      faults.push_back("The order of users by " + name + " is wrong: " + difference + ".");
    }
  } catch (const Error& error) {
    if (error.Number() != ErrorNumber::DirectoryDamaged) throw;
    faults.push_back("The order of users by " + name + " cannot be read: " + error.Description() + ".");
  }
}

void CheckLeftBlocks(sqlite::Database& database, std::vector<std::string>& faults) {
  std::int64_t listed = 0;
  for (Order order : kOrders)
    listed += static_cast<std::int64_t>(OrderBlocks(database, order).ReadMap().size());
  auto count = database.Prepare("SELECT count(*) FROM user_order_block");
  count->Step();
  if (count->Int(0) != listed) faults.push_back("The orders of users have blocks that are not listed.");
}

}  // namespace

std::vector<std::string> CheckIndex(sqlite::Database& database) {
  IndexImage image;
  image.AddStoredUsers(database);
  std::vector<std::string> faults;
  CheckTexts(database, image, faults);
  for (Order order : kOrders) CheckOrder(database, image, order, faults);
  CheckLeftBlocks(database, faults);
  return faults;
}

}  // namespace mindloft
