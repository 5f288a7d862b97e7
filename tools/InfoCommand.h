#pragma once

#include "tools/Command.h"

namespace mindloft {

/// `info FILE`: counts what a directory holds.
class InfoCommand : public Command {
 public:
  std::string_view Name() const override { return "info"; }
  std::string_view Summary() const override;
  std::string_view Details() const override;
  const std::vector<Option>& Options() const override;
  int Run(const Arguments& arguments, Console& console) const override;
};

}  // namespace mindloft
