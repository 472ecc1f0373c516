#pragma once

#include <string>

namespace velmar::access_reader {

/// The ISO text of a date of the Jet engine: the whole part of `value` counts days from 1899-12-30, the
/// fraction is the time of day and counts forward also before that day. "2006-02-03T08:00:00", to the second.
/// @return an empty text when the value is outside the years 100 to 9999
std::string JetDateText(double value);

}  // namespace velmar::access_reader
