#include "presentation/texts/result_lines.h"

#include "acoustics/bands.h"
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

std::string ImprovementLine(Family family, const elements::ResultSet& result) {
  if ((family != Family::kLining && family != Family::kCeiling) || !result.delta_rw) return {};
  return "DRw= " + FormatTerm(result.delta_rw) + " dB";
}

}  // namespace velmar::presentation
