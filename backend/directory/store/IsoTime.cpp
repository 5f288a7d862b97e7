#include "backend/directory/store/IsoTime.h"

#include <chrono>
#include <cstdio>

namespace mindloft {

std::string IsoTime(Timestamp time) {
  using namespace std::chrono;
  auto point = floor<seconds>(sys_time<milliseconds>(milliseconds(time)));
  auto day = floor<days>(point);
  year_month_day date(day);
  hh_mm_ss clock(point - day);
  char text[48];
  std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                static_cast<int>(clock.seconds().count()));
  return text;
}

}  // namespace mindloft
