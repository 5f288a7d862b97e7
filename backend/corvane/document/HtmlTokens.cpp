#include "backend/corvane/document/HtmlTokens.h"

#include <algorithm>

#include "backend/corvane/document/BrokenDocument.h"

namespace mindloft::Corvane {
namespace {

constexpr std::string_view kBlanks = " \t\r\n\f";
/// Elements whose content is no text.
constexpr std::string_view kSkipped[] = {"script", "style", "title",  "head",  "template", "object",
                                         "iframe", "svg",   "select", "audio", "video",    "noscript"};
constexpr std::size_t kMostAttributes = 32;

char Lower(char each) {
  return each >= 'A' && each <= 'Z' ? static_cast<char>(each - 'A' + 'a') : each;
}

std::string Lower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char each) { return Lower(each); });
  return lower;
}

bool IsLetter(char each) {
  return Lower(each) >= 'a' && Lower(each) <= 'z';
}

/// Where the tag ends: the next ">" outside quotation marks; npos when there is none.
std::size_t EndOfTag(std::string_view tag) {
  char quote = 0;
  for (std::size_t i = 0; i < tag.size(); ++i) {
    if (quote)
      quote = tag[i] == quote ? '\0' : quote;
    else if ((tag[i] == '"' || tag[i] == '\'') && i > 0 && tag[i - 1] == '=')
      quote = tag[i];
    else if (tag[i] == '>')
      return i;
  }
  return tag.find('>');
}

}  // namespace

std::string HtmlToken::Attribute(std::string_view wanted) const {
  for (const auto& [name, value] : attributes) {
    if (name == wanted) return value;
  }
  return {};
}

bool HtmlTokens::Next(HtmlToken& token) {
  token = {};
  while (!rest_.empty()) {
    if (rest_.front() == '<' && ReadTag(token)) {
      if (!token.name.empty()) return true;
      continue;
    }
    // At least one character, so that a "<" that begins no tag is text.
    const auto end = rest_.find('<', 1);
    token.text = WithoutReferences(rest_.substr(0, end));
    rest_.remove_prefix(std::min(end, rest_.size()));
    return true;
  }
  return false;
}

bool HtmlTokens::ReadTag(HtmlToken& token) {
  if (rest_.starts_with("<!--")) {
    const auto end = rest_.find("-->");
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 3);
    return true;
  }
  const bool isEnd = rest_.starts_with("</");
  const std::size_t start = isEnd ? 2 : 1;
  const bool isDeclaration = rest_.size() > 1 && (rest_[1] == '!' || rest_[1] == '?');
  if (!isDeclaration && (rest_.size() <= start || !IsLetter(rest_[start]))) return false;
  const auto end = isDeclaration ? rest_.find('>') : EndOfTag(rest_);
  if (end == std::string_view::npos) return false;
  const std::string_view tag = rest_.substr(start, end - start);
  rest_.remove_prefix(end + 1);
  if (isDeclaration) return true;
  const auto nameEnd = std::min(tag.find_first_of(" \t\r\n\f/"), tag.size());
  token.kind = isEnd ? HtmlToken::Kind::End : HtmlToken::Kind::Start;
  token.name = Lower(tag.substr(0, nameEnd));
  if (isEnd) return true;
  ReadAttributes(tag.substr(nameEnd), token);
  if (std::find(std::begin(kSkipped), std::end(kSkipped), token.name) != std::end(kSkipped)) {
    SkipContent(token.name);
    token.name.clear();
  }
  return true;
}

void HtmlTokens::ReadAttributes(std::string_view tag, HtmlToken& token) const {
  while (token.attributes.size() < kMostAttributes) {
    const auto start = tag.find_first_not_of(" \t\r\n\f/");
    if (start == std::string_view::npos) return;
    tag.remove_prefix(start);
    const auto nameEnd = std::min(tag.find_first_of(" \t\r\n\f=/", 1), tag.size());
    std::string name = Lower(tag.substr(0, nameEnd));
    tag.remove_prefix(nameEnd);
    tag.remove_prefix(std::min(tag.find_first_not_of(kBlanks), tag.size()));
    std::string value;
    if (tag.starts_with('=')) {
      tag.remove_prefix(1);
      tag.remove_prefix(std::min(tag.find_first_not_of(kBlanks), tag.size()));
      const bool isQuoted = tag.starts_with('"') || tag.starts_with('\'');
      const auto end = isQuoted ? tag.find(tag.front(), 1) : tag.find_first_of(kBlanks);
      const std::size_t first = isQuoted ? 1 : 0;
      const auto last = std::min(end, tag.size());
      value = WithoutReferences(tag.substr(first, last - first));
      tag.remove_prefix(std::min(last + first, tag.size()));
    }
    token.attributes.emplace_back(std::move(name), std::move(value));
  }
}

void HtmlTokens::SkipContent(const std::string& name) {
  const std::string end = "</" + name;
  const auto found = std::search(rest_.begin(), rest_.end(), end.begin(), end.end(),
                                 [](char one, char other) { return Lower(one) == other; });
  // The end tag itself comes next.
  rest_.remove_prefix(static_cast<std::size_t>(found - rest_.begin()));
}

}  // namespace mindloft::Corvane
