#pragma once

#include "tools/Command.h"

namespace mindloft {

/// `sample FILE`: makes a directory filled with invented users, domains and groups.
class SampleCommand : public Command {
 public:
  std::string_view Name() const override { return "sample"; }
  std::string_view Summary() const override;
  std::string_view Details() const override;
  const std::vector<Option>& Options() const override;
  int Run(const Arguments& arguments, Console& console) const override;
};

}  // namespace mindloft
