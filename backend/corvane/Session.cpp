#include "backend/corvane/Session.h"

#include <charconv>

#include "backend/errors/Error.h"

namespace mindloft::Corvane {

Directory& Session::Door() const {
  if (id == 0 || !directory) throw Error(ErrorNumber::NotLoggedIn);
  return *directory;
}

std::string IdText(ObjectId id) {
  return id == 0 ? std::string() : std::to_string(id);
}

ObjectId IdFromText(const std::string& text) {
  ObjectId id = 0;
  const char* end = text.data() + text.size();
  auto [stop, error] = std::from_chars(text.data(), end, id);
  return error == std::errc() && stop == end && id > 0 ? id : 0;
}

}  // namespace mindloft::Corvane
