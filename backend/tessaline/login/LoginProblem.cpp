#include "backend/tessaline/login/LoginProblem.h"

#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"

namespace mindloft {

LoginProblem LoginProblem::Of(const Error& error, int systemFailureText) {
  const int number = static_cast<int>(error.Number());
  LoginProblem problem;
  problem.details = ToWx(error.Description());
  if (!IsApplicationError(error.Number())) {
    problem.text = GetResource().GetFormatString(systemFailureText, {wxString::Format("%d", number)});
    return problem;
  }
  std::vector<wxString> parameters;
  for (const auto& parameter : error.Parameters()) parameters.push_back(ToWx(parameter));
  problem.text = GetResource().GetFormatString(number, parameters);
  return problem;
}

}  // namespace mindloft
