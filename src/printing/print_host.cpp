#include "printing/print_host.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace tolmar {

std::chrono::year_month_day PrintHost::today() const {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return std::chrono::year_month_day{std::chrono::year{local.tm_year + 1900},
                                     std::chrono::month{static_cast<unsigned>(local.tm_mon + 1)},
                                     std::chrono::day{static_cast<unsigned>(local.tm_mday)}};
}

std::string dateText(std::chrono::year_month_day d) {
  const unsigned m = std::min(static_cast<unsigned>(d.month()), 99u);
  const unsigned day = std::min(static_cast<unsigned>(d.day()), 99u);
  const int y = std::clamp(static_cast<int>(d.year()), 0, 9999);
  char buf[16];
  std::snprintf(buf, sizeof buf, "%02u-%02u-%04d", m, day, y);
  return buf;
}

}  // namespace tolmar
