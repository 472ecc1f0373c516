#include "cli/output/outcome_table.h"

#include <algorithm>
#include <optional>
#include <ostream>
#include <string>

#include "acoustics/bands.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/utf8.h"

namespace velmar::cli {
namespace {

using elements::ResultSet;

constexpr std::size_t kNameWidth = 13;
constexpr std::size_t kNumberWidth = 9;

struct Rating {
  const char* name;
  std::optional<double> ResultSet::*value;
  int decimals;
};

constexpr Rating kRatings[] = {
    {"Rw", &ResultSet::rw, 0},           {"C", &ResultSet::c, 0},      {"Ctr", &ResultSet::ctr, 0},
    {"ΔRw", &ResultSet::delta_rw, 1},    {"Ln,w", &ResultSet::lnw, 0}, {"Ci", &ResultSet::ci, 0},
    {"ΔLn,w", &ResultSet::delta_lnw, 1},
};

/// `text` with blanks before it up to `width` characters.
std::string RightAligned(const std::string& text, std::size_t width) {
  return std::string(width - std::min(width, CountCharacters(text)), ' ') + text;
}

void WriteNumber(const std::string& name, double value, int decimals, const char* unit, std::ostream& out) {
  out << RightAligned(name, kNameWidth) << RightAligned(FormatFixed(value, decimals), kNumberWidth) << ' '
      << unit << '\n';
}

}  // namespace

void WriteRatings(const ResultSet& result, std::span<const elements::SingleNumber> numbers,
                  std::ostream& out) {
  for (const Rating& rating : kRatings) {
    if (const auto& value = result.*rating.value)
      WriteNumber(rating.name, *value, rating.decimals, "dB", out);
  }
  for (const elements::SingleNumber& number : numbers) {
    if (number.further) WriteNumber(number.symbol, number.value, number.decimals, number.unit, out);
  }
}

void WriteResult(const CalculationTexts& texts, const ResultSet& result,
                 std::span<const elements::SingleNumber> numbers, const calculation::Totals& totals,
                 const presentation::Words& words, std::ostream& out) {
  out << texts.variant << " (" << texts.orientation << ")\n";
  WriteNumber(words(kTotalThicknessRow), totals.thickness_mm, 1, "", out);
  WriteNumber(words(kSurfaceMassRow), totals.surface_mass_kg_m2, 1, "", out);
  out << '\n';
  if (result.spectrum) {
    out << RightAligned(words(kFrequencyRow), kNameWidth + 4)
        << RightAligned(words(result.lnw ? kImpactHeadingRow : kAirborneHeadingRow), kNumberWidth) << '\n';
    for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
      out << RightAligned(FormatShortest(acoustics::BandCentre(band)), kNameWidth + 4)
          << RightAligned(FormatFixed((*result.spectrum)[band], 1), kNumberWidth) << '\n';
    }
    out << '\n';
  }
  WriteRatings(result, numbers, out);
}

void WriteMessage(const Message& message, const presentation::Words& words, std::ostream& out) {
  for (const MessageLine& line : message) out << presentation::InWords(line, words) << '\n';
}

}  // namespace velmar::cli
