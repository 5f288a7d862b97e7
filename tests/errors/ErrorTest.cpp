#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "backend/errors/Error.h"

namespace mindloft {
namespace {

Error ArisenInSaveRoles() {
  struct frmSheet {
    static Error SaveRoles() { return Error(ErrorNumber::Conflict); }
  };
  return frmSheet::SaveRoles();
}

TEST(ErrorTest, LineBelongsToTheProcedureOfOriginOnly) {
  Error error = ArisenInSaveRoles();
  EXPECT_EQ(error.LineIn("SaveRoles"), static_cast<int>(error.Origin().line()));
  EXPECT_EQ(error.LineIn("Save"), 0) << "a part of the name is another procedure";
  EXPECT_EQ(error.LineIn("cmdApply_Click"), 0);
}

TEST(ErrorTest, TrailNamesEachProcedureOnceInItsOrder) {
  Error error(ErrorNumber::Conflict);
  error.AddProcedure("frmSheet", "SaveRoles");
  error.AddProcedure("frmSheet", "cmdApply_Click");
  EXPECT_EQ(error.Source(), "SaveRoles of frmSheet; cmdApply_Click of frmSheet");
}

template <typename Thrown>
ErrorNumber NumberOf(Thrown thrown) {
  try {
    throw thrown;
  } catch (...) {
    return CurrentError().Number();
  }
}

TEST(ErrorTest, EveryExceptionBecomesANumberedError) {
  EXPECT_EQ(NumberOf(Error(ErrorNumber::NameExists)), ErrorNumber::NameExists);
  EXPECT_EQ(NumberOf(std::bad_alloc()), ErrorNumber::OutOfMemory);
  EXPECT_EQ(NumberOf(std::runtime_error("x")), ErrorNumber::Unexpected);
  EXPECT_EQ(NumberOf(42), ErrorNumber::Unexpected);
}

}  // namespace
}  // namespace mindloft
