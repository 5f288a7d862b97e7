// The speed of a directory of a million users, against its targets. Arguments: the folder to work in (made
// when missing; a filled file in it is used again), the number of users, and "--cpu" for processor time
// instead of the time that passes.

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "backend/errors/Error.h"
#include "bench/ChangeBench.h"
#include "bench/FillBench.h"
#include "bench/LanguageBench.h"
#include "bench/ReadBench.h"

int main(int count, char** arguments) try {
  using namespace mindloft;
  const std::filesystem::path folder = count > 1 ? arguments[1] : "bench-data";
  const auto users = count > 2 ? static_cast<std::uint32_t>(std::stoul(arguments[2])) : 1000000U;
  bench::measuresProcessorTime = count > 3 && std::string_view(arguments[3]) == "--cpu";
  std::filesystem::create_directories(folder);
  bench::Report report;
  const auto file = folder / "loaded.mdir";
  if (!std::filesystem::exists(file)) bench::MeasureFilling(folder, users, report);
  bench::MeasureReading(file, report);
  bench::MeasureChanging(file, report);
  bench::MeasureLanguages(file, report);
  return report.Passed() ? EXIT_SUCCESS : EXIT_FAILURE;
} catch (...) {
  std::fprintf(stderr, "%s\n", mindloft::CurrentError().what());
  return EXIT_FAILURE;
}
