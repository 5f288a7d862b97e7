#include "backend/errors/Error.h"

#include <new>
#include <stdexcept>
#include <string_view>

namespace mindloft {
namespace {

/// The bare procedure name in a compiler's full function name ("void mindloft::frmX::Load(int)" holds
/// "Load").
bool NamesProcedure(std::string_view function, std::string_view procedure) {
  auto isIdentifier = [](char c) {
    return c == '_' || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
  };
  for (auto at = function.find(procedure); at != std::string_view::npos;
       at = function.find(procedure, at + 1)) {
    auto end = at + procedure.size();
    bool startsHere = at == 0 || !isIdentifier(function[at - 1]);
    if (startsHere && (end == function.size() || !isIdentifier(function[end]))) return true;
  }
  return false;
}

}  // namespace

Error::Error(ErrorNumber number, std::string description, std::vector<std::string> parameters,
             std::source_location origin)
    : number_(number),
      description_(std::move(description)),
      parameters_(std::move(parameters)),
      origin_(origin) {}

std::string Error::Source() const {
  std::string source;
  for (const auto& procedure : trail_) {
    if (!source.empty()) source += "; ";
    source += procedure;
  }
  return source;
}

void Error::AddProcedure(const std::string& objectName, const std::string& procedureName) {
  trail_.push_back(procedureName + " of " + objectName);
}

int Error::LineIn(const std::string& procedureName) const {
  return NamesProcedure(origin_.function_name(), procedureName) ? static_cast<int>(origin_.line()) : 0;
}

Error CurrentError() {
  try {
    throw;
  } catch (const Error& error) {
    return error;
  } catch (const std::bad_alloc& error) {
    return Error(ErrorNumber::OutOfMemory, error.what());
  } catch (const std::exception& error) {
    return Error(ErrorNumber::Unexpected, error.what());
  } catch (...) {
    return Error(ErrorNumber::Unexpected, "an exception of an unknown type");
  }
}

}  // namespace mindloft
