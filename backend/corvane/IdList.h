#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "backend/corvane/View.h"

namespace mindloft::Corvane {

/// The identifiers of a list joined by ";". Blanks and empty parts do not count; TypeMismatch for a part that
/// is no identifier, Overflow for one that is too large.
std::vector<ObjectId> IdsFromList(std::string_view list);

/// Identifiers joined by ";".
std::string JoinIds(const std::vector<ObjectId>& ids);

/// The identifiers of all objects of a view joined by ";", read page by page.
template <typename Record>
std::string IdListOf(const View<Record>& view) {
  constexpr std::int64_t kPage = 1000;
  std::string list;
  for (std::int64_t first = 0;; first += kPage) {
    const auto page = view.Page(first, kPage);
    for (const auto& record : page) {
      if (!list.empty()) list += ';';
      list += IdText(record.id);
    }
    if (static_cast<std::int64_t>(page.size()) < kPage) return list;
  }
}

}  // namespace mindloft::Corvane
