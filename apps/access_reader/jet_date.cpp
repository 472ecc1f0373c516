#include "access_reader/jet_date.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace velmar::access_reader {

std::string JetDateText(double value) {
  constexpr double kFirstDay = -657434.0;  // 0100-01-01
  constexpr double kLastDay = 2958466.0;   // 10000-01-01
  if (!(value > kFirstDay - 1.0 && value < kLastDay)) return {};
  const double whole = std::trunc(value);
  constexpr long kSecondsOfDay = 86400;
  long second = std::lround(std::abs(value - whole) * static_cast<double>(kSecondsOfDay));
  std::chrono::sys_days day =
      std::chrono::sys_days(std::chrono::year(1899) / 12 / 30) + std::chrono::days(static_cast<int>(whole));
  if (second >= kSecondsOfDay) {
    second -= kSecondsOfDay;
    day += std::chrono::days(1);
  }
  const std::chrono::year_month_day date(day);
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02ld:%02ld:%02ld", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()), second / 3600,
                second / 60 % 60, second % 60);
  return text.data();
}

}  // namespace velmar::access_reader
