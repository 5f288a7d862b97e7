#include "backend/corvane/IdList.h"

#include <algorithm>
#include <charconv>

#include "backend/corvane/Trimmed.h"
#include "backend/errors/Error.h"

namespace mindloft::Corvane {
namespace {

ObjectId IdFromPart(std::string_view part) {
  ObjectId id = 0;
  const auto end = part.data() + part.size();
  const auto [stop, error] = std::from_chars(part.data(), end, id);
  if (stop == end && error == std::errc::result_out_of_range) {
    throw Error(ErrorNumber::Overflow, "identifier " + std::string(part));
  }
  if (stop != end || error != std::errc() || id <= 0) {
    throw Error(ErrorNumber::TypeMismatch, "identifier \"" + std::string(part.substr(0, 100)) + '"');
  }
  return id;
}

}  // namespace

std::vector<ObjectId> IdsFromList(std::string_view list) {
  std::vector<ObjectId> ids;
  while (!list.empty()) {
    const auto length = std::min(list.find(';'), list.size());
    const auto part = Trimmed(list.substr(0, length));
    if (!part.empty()) ids.push_back(IdFromPart(part));
    list.remove_prefix(std::min(length + 1, list.size()));
  }
  return ids;
}

std::string JoinIds(const std::vector<ObjectId>& ids) {
  std::string list;
  for (const ObjectId id : ids) {
    if (!list.empty()) list += ';';
    list += IdText(id);
  }
  return list;
}

}  // namespace mindloft::Corvane
