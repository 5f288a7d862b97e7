#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mindloft::Corvane {

/// The XPath expressions from which elements can be created: child steps of plain names, each with any number
/// of [@Name = 'text'] predicates, and an attribute at the end.
struct ConfigPath {
  struct Condition {
    std::string attribute;
    std::string text;
  };
  struct Step {
    std::string element;
    std::vector<Condition> conditions;
  };
  bool absolute = false;
  std::vector<Step> steps;
  std::string attribute;

  /// Nothing when the expression is of another form.
  static std::optional<ConfigPath> Parse(std::string_view expression);
};

}  // namespace mindloft::Corvane
