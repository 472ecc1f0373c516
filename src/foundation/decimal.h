#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// The number that a user typed or a file holds: decimal comma or point, an optional sign, an optional
/// exponent
/// ("1E-3"), blanks around it allowed.
/// @return nothing when the text is empty, holds anything else, or names a number that is not finite
std::optional<double> ParseDecimal(std::string_view text);

/// ParseDecimal() narrowed to single precision. Nothing when the value leaves its range.
std::optional<float> ParseSingle(std::string_view text);

/// The shortest text that gives the value back, with a decimal comma: "0,1", "120", "1,5E-05". An exponent of
/// at least two digits stands below 1E-04 and from 1E+16 on.
std::string FormatShortest(double value);
/// The shortest text that gives the single-precision value back.
std::string FormatShortest(float value);

/// `value` with exactly `decimals` decimals and a decimal comma, ties to the even digit: format "###0.0" is
/// FormatFixed(value, 1).
std::string FormatFixed(double value, int decimals);

}  // namespace velmar
