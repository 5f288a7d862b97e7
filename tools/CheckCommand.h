#pragma once

#include "tools/Command.h"

namespace mindloft {

/// `check FILE`: says what is wrong with a directory.
class CheckCommand : public Command {
 public:
  std::string_view Name() const override { return "check"; }
  std::string_view Summary() const override;
  std::string_view Details() const override;
  const std::vector<Option>& Options() const override;
  int Run(const Arguments& arguments, Console& console) const override;
};

}  // namespace mindloft
