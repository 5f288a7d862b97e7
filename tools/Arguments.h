#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mindloft {

/// An option of a command.
struct Option {
  std::string_view name;   ///< "--users"
  std::string_view value;  ///< what the help calls its value; empty: it takes none
  std::string_view help;
};

/// A command's arguments: its file and its options. Throws UsageError for what the command does not take.
class Arguments {
 public:
  /// An option's value follows it, or stands behind "=" in the same argument. "--" ends the options.
  Arguments(const std::vector<std::string>& arguments, const std::vector<Option>& options);

  const std::string& File() const { return *file_; }
  bool Has(std::string_view option) const { return values_.contains(option); }
  std::optional<std::string> Text(std::string_view option) const;
  /// UsageError when the value is no whole number within the limits.
  std::uint64_t Number(std::string_view option, std::uint64_t preset, std::uint64_t least,
                       std::uint64_t greatest) const;

 private:
  void Take(const std::string& argument);

  std::optional<std::string> file_;
  std::map<std::string, std::string, std::less<>> values_;
};

}  // namespace mindloft
