#include "tools/Arguments.h"

#include <algorithm>
#include <charconv>

#include "tools/UsageError.h"

namespace mindloft {

Arguments::Arguments(const std::vector<std::string>& arguments, const std::vector<Option>& options) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const auto& argument = arguments[i];
    if (argument == "--") {
      for (++i; i < arguments.size(); ++i) Take(arguments[i]);
      break;
    }
    if (argument.size() < 2 || argument.front() != '-') {
      Take(argument);
      continue;
    }
    const auto equals = argument.find('=');
    const auto name = argument.substr(0, equals);
    const auto option =
        std::find_if(options.begin(), options.end(), [&](const auto& known) { return known.name == name; });
    if (option == options.end()) throw UsageError("There is no option " + name + ".");
    if (values_.contains(name)) throw UsageError("The option " + name + " is given twice.");
    auto& value = values_[name];
    if (option->value.empty()) {
      if (equals != std::string::npos) throw UsageError("The option " + name + " takes no value.");
    } else if (equals != std::string::npos) {
      value = argument.substr(equals + 1);
    } else if (i + 1 < arguments.size()) {
      value = arguments[++i];
    } else {
      throw UsageError("The option " + name + " needs a value.");
    }
  }
  if (!file_) throw UsageError("The name of the directory file is missing.");
}

void Arguments::Take(const std::string& argument) {
  if (file_) throw UsageError("There is one argument too many: " + argument);
  if (argument.empty()) throw UsageError("The name of the directory file is empty.");
  file_ = argument;
}

std::optional<std::string> Arguments::Text(std::string_view option) const {
  const auto value = values_.find(option);
  if (value == values_.end()) return {};
  return value->second;
}

std::uint64_t Arguments::Number(std::string_view option, std::uint64_t preset, std::uint64_t least,
                                std::uint64_t greatest) const {
  const auto text = Text(option);
  if (!text) return preset;
  std::uint64_t number = 0;
  const auto end = text->data() + text->size();
  const auto [stop, error] = std::from_chars(text->data(), end, number);
  if (error != std::errc() || stop != end || number < least || number > greatest) {
    throw UsageError("The option " + std::string(option) + " needs a whole number from " +
                     std::to_string(least) + " to " + std::to_string(greatest) + ", not \"" + *text + "\".");
  }
  return number;
}

}  // namespace mindloft
