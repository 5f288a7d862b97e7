#pragma once

#include <exception>
#include <source_location>
#include <string>
#include <vector>

#include "backend/errors/ErrorNumbers.h"

namespace mindloft {

/// The only exception type that leaves a procedure: a numbered failure with the trail of the procedures it
/// passed.
///
/// Numbers of 10000 and above are application errors (ErrorNumbers.h names each); lower ones are failures of
/// the system, of a library or of the program itself.
class Error : public std::exception {
 public:
  /// `parameters` fill the places of the numbered text that the user reads; `description` is for the log and
  /// the "more information" panel, its parts separated by ";".
  explicit Error(ErrorNumber number, std::string description = {}, std::vector<std::string> parameters = {},
                 std::source_location origin = std::source_location::current());

  ErrorNumber Number() const { return number_; }
  const std::string& Description() const { return description_; }
  const std::vector<std::string>& Parameters() const { return parameters_; }
  /// Where it arose.
  const std::source_location& Origin() const { return origin_; }
  /// The procedures that it passed, the innermost first: "SaveRoles of frmUserDetail; cmdApply_Click of
  /// frmUserDetail".
  std::string Source() const;
  const std::vector<std::string>& Trail() const { return trail_; }
  /// Adds one procedure to the trail.
  void AddProcedure(const std::string& objectName, const std::string& procedureName);
  /// The line to report for a procedure: the line of origin when the error arose in the procedure of that
  /// name, else 0.
  int LineIn(const std::string& procedureName) const;

  /// For logs; never shown to a user.
  const char* what() const noexcept override { return description_.c_str(); }

 private:
  ErrorNumber number_;
  std::string description_;
  std::vector<std::string> parameters_;
  std::source_location origin_;
  std::vector<std::string> trail_;
};

/// The exception being handled as an Error: an Error stays itself, a standard exception becomes a system
/// error. Call it in a catch block only.
Error CurrentError();

}  // namespace mindloft
