#pragma once

#include "tools/Command.h"

namespace mindloft {

/// `create FILE`: makes a new directory with its first administrator.
class CreateCommand : public Command {
 public:
  std::string_view Name() const override { return "create"; }
  std::string_view Summary() const override;
  std::string_view Details() const override;
  const std::vector<Option>& Options() const override;
  int Run(const Arguments& arguments, Console& console) const override;
};

}  // namespace mindloft
