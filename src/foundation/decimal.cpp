#include "foundation/decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "foundation/rounding.h"

namespace velmar {
namespace {

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlank = " \t\r\n\v\f";
  const size_t first = text.find_first_not_of(kBlank);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlank) - first + 1);
}

template <typename Number>
std::string Shortest(Number value) {
  if (value == Number{0}) return "0";
  const double magnitude = std::abs(static_cast<double>(value));
  const bool scientific = magnitude < 1e-4 || magnitude >= 1e16;
  std::array<char, 64> buffer{};
  const auto format = scientific ? std::chars_format::scientific : std::chars_format::fixed;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format).ptr;
  std::string text(buffer.data(), end);
  std::replace(text.begin(), text.end(), '.', ',');
  std::replace(text.begin(), text.end(), 'e', 'E');
  return text;
}

}  // namespace

std::optional<double> ParseDecimal(std::string_view text) {
  text = Trimmed(text);
  // Longer than any number a person types; also keeps the copy below small whatever the bytes.
  if (text.empty() || text.size() > 400) return std::nullopt;
  if (text.front() == '+') {
    text.remove_prefix(1);
    if (text.empty() || text.front() == '-') return std::nullopt;
  }
  if (text.find_first_not_of("0123456789+-.,eE") != std::string_view::npos) return std::nullopt;
  std::string normalised(text);
  std::replace(normalised.begin(), normalised.end(), ',', '.');
  double value = 0.0;
  const char* end = normalised.data() + normalised.size();
  const auto [rest, error] = std::from_chars(normalised.data(), end, value);
  if (rest != end || !std::isfinite(value)) return std::nullopt;
  if (error == std::errc::result_out_of_range) {
    // from_chars reports a number too small for a double the same way as one too large.
    const bool too_small =
        normalised.find("e-") != std::string::npos || normalised.find("E-") != std::string::npos;
    return too_small ? std::optional(0.0) : std::nullopt;
  }
  if (error != std::errc{}) return std::nullopt;
  return value;
}

std::optional<float> ParseSingle(std::string_view text) {
  const std::optional<double> value = ParseDecimal(text);
  if (!value || std::abs(*value) > static_cast<double>(std::numeric_limits<float>::max()))
    return std::nullopt;
  return static_cast<float>(*value);
}

std::string FormatShortest(double value) { return Shortest(value); }
std::string FormatShortest(float value) { return Shortest(value); }

std::string FormatFixed(double value, int decimals) {
  std::array<char, 400> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), RoundToEven(value, decimals),
                                 std::chars_format::fixed, decimals)
                       .ptr;
  std::string text(buffer.data(), end);
  std::replace(text.begin(), text.end(), '.', ',');
  return text;
}

}  // namespace velmar
