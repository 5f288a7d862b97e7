#include "backend/corvane/ConfigPath.h"

#include <utility>

namespace mindloft::Corvane {
namespace {

bool IsNameStart(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

bool IsNamePart(char c) {
  return IsNameStart(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
}

/// Takes tokens from the front of an expression. Blanks before a token do not count.
class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  bool AtEnd() {
    SkipBlanks();
    return rest_.empty();
  }

  bool Symbol(char symbol) {
    SkipBlanks();
    if (rest_.empty() || rest_.front() != symbol) return false;
    rest_.remove_prefix(1);
    return true;
  }

  bool Name(std::string& name) {
    SkipBlanks();
    if (rest_.empty() || !IsNameStart(rest_.front())) return false;
    std::size_t length = 1;
    while (length < rest_.size() && IsNamePart(rest_[length])) ++length;
    name = rest_.substr(0, length);
    rest_.remove_prefix(length);
    return true;
  }

  bool Literal(std::string& text) {
    SkipBlanks();
    if (rest_.empty() || (rest_.front() != '\'' && rest_.front() != '"')) return false;
    const auto end = rest_.find(rest_.front(), 1);
    if (end == std::string_view::npos) return false;
    text = rest_.substr(1, end - 1);
    rest_.remove_prefix(end + 1);
    return true;
  }

 private:
  void SkipBlanks() {
    const auto first = rest_.find_first_not_of(" \t\r\n");
    rest_.remove_prefix(first == std::string_view::npos ? rest_.size() : first);
  }

  std::string_view rest_;
};

bool ReadConditions(Reader& reader, std::vector<ConfigPath::Condition>& conditions) {
  while (reader.Symbol('[')) {
    ConfigPath::Condition condition;
    if (!reader.Symbol('@') || !reader.Name(condition.attribute) || !reader.Symbol('=') ||
        !reader.Literal(condition.text) || !reader.Symbol(']')) {
      return false;
    }
    conditions.push_back(std::move(condition));
  }
  return true;
}

}  // namespace

std::optional<ConfigPath> ConfigPath::Parse(std::string_view expression) {
  Reader reader(expression);
  ConfigPath path;
  path.absolute = reader.Symbol('/');
  while (!reader.Symbol('@')) {
    Step step;
    if (!reader.Name(step.element) || !ReadConditions(reader, step.conditions) || !reader.Symbol('/'))
      return {};
    path.steps.push_back(std::move(step));
  }
  if (!reader.Name(path.attribute) || !reader.AtEnd()) return {};
  if (path.absolute && path.steps.empty()) return {};
  return path;
}

}  // namespace mindloft::Corvane
