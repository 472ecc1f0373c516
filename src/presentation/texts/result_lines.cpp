#include "presentation/texts/result_lines.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "acoustics/bands.h"
#include "elements/single_numbers.h"
#include "foundation/decimal.h"
#include "foundation/rounding.h"
#include "presentation/texts/results_table.h"

namespace velmar::presentation {
namespace {

using elements::Family;

std::string ImpactLine(const elements::ResultSet& result) {
  if (!result.lnw) return {};
  if (!result.ci) return "Lnw= " + FormatLevel(result.lnw) + " dB";
  return "Lnw(Ci)= " + FormatLevel(result.lnw) + " (" + FormatTerm(result.ci) + ") dB";
}

}  // namespace

std::string FormatLevel(std::optional<double> level_db) {
  return level_db ? FormatFixed(*level_db, 1) : std::string();
}

std::string FormatTerm(std::optional<double> term_db) {
  return term_db ? FormatShortest(RoundToEven(*term_db)) : std::string();
}

std::string ReferenceLevel(Family family, std::optional<double> shift, std::size_t band) {
  if (!shift || band < acoustics::kFirstRatedBand || band > acoustics::kLastRatedBand) return {};
  return FormatShortest(ReferenceCurve(family)[band - acoustics::kFirstRatedBand] + *shift);
}

std::string ResultLine(Family family, const elements::ResultSet& result) {
  if (family == Family::kImpact) return ImpactLine(result);
  if (!result.rw) return {};
  if (!result.c || !result.ctr) return "Rw= " + FormatLevel(result.rw) + " dB";
  return "Rw(C; Ctr)= " + FormatLevel(result.rw) + " (" + FormatTerm(result.c) + "; " +
         FormatTerm(result.ctr) + ") dB";
}

std::string FurtherNumbersLine(elements::Calculation calculation, const elements::ResultSet& result) {
  const Family family = elements::RowOf(calculation).family;
  if (family == Family::kLining || family == Family::kCeiling) return {};
  constexpr std::array<std::string_view, 6> kShown = {"C50-5000", "Ctr,50-5000", "STC",
                                                      "OITC",     "CI,50-2500",  "IIC"};
  std::string terms;
  std::string classes;
  for (const elements::SingleNumber& number : elements::SingleNumbersOf(result, calculation)) {
    if (std::find(kShown.begin(), kShown.end(), number.key) == kShown.end()) continue;
    std::string& part = *number.unit == '\0' ? classes : terms;
    if (!part.empty()) part += "; ";
    part += std::string(number.symbol) + "= " + FormatFixed(number.value, number.decimals);
  }
  if (!terms.empty()) terms += " dB";
  return terms.empty() || classes.empty() ? terms + classes : terms + "; " + classes;
}

std::string ImprovementLine(Family family, const elements::ResultSet& result) {
  if (family == Family::kImpact && result.delta_lnw) return "DLw= " + FormatLevel(result.delta_lnw) + " dB";
  if (!IsLining(family) || !result.delta_rw) return {};
  return "DRw= " + FormatTerm(result.delta_rw) + " dB";
}

}  // namespace velmar::presentation
