#include "cli/commands/rate_command.h"

#include <optional>
#include <ostream>
#include <vector>

#include <nlohmann/json.hpp>

#include "acoustics/airborne_numbers.h"
#include "acoustics/airborne_rating.h"
#include "acoustics/impact_numbers.h"
#include "acoustics/impact_rating.h"
#include "cli/output/outcome_json.h"
#include "cli/output/outcome_table.h"
#include "foundation/decimal.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::cli {
namespace {

/// What is known of a spectrum that was given.
struct GivenSpectrum {
  acoustics::Spectrum levels{};          ///< 0 where no value was given
  acoustics::BandLevels known_levels{};  ///< the values given alone
};

/// The band of the first value given; nothing when the number of values fits no spectrum.
std::optional<std::size_t> FirstBand(std::size_t count) {
  if (count == acoustics::kRatedBandCount) return acoustics::kFirstRatedBand;
  if (count == acoustics::kBandCount) return 0;
  return std::nullopt;
}

std::vector<elements::SingleNumber> Numbers(const acoustics::BandLevels& levels, bool impact) {
  return impact ? elements::SingleNumbersOf(acoustics::FindImpactNumbers(levels))
                : elements::SingleNumbersOf(acoustics::FindAirborneNumbers(levels));
}

elements::ResultSet Rate(const acoustics::Spectrum& spectrum, bool impact) {
  elements::ResultSet result;
  if (impact) {
    result.shift = acoustics::FindImpactShift(spectrum);
    result.lnw = acoustics::ImpactRatingOfShift(*result.shift);
    result.ci = acoustics::FindImpactAdaptationTerm(spectrum, *result.lnw);
    return result;
  }
  result.shift = acoustics::FindShift(spectrum);
  result.rw = acoustics::RatingOfShift(*result.shift);
  const acoustics::AdaptationTerms terms = acoustics::FindAdaptationTerms(spectrum, *result.rw);
  result.c = terms.c;
  result.ctr = terms.ctr;
  return result;
}

}  // namespace

ExitCode Execute(const RateCommand& command, const presentation::Words& words, std::ostream& out,
                 std::ostream& errors) {
  const std::optional<std::size_t> first_band = FirstBand(command.values.size());
  if (!first_band) {
    errors << words(kWrongCountRow) << '\n';
    return ExitCode::kWrongUsage;
  }
  GivenSpectrum spectrum;
  for (std::size_t i = 0; i < command.values.size(); ++i) {
    const std::optional<double> value = ParseDecimal(command.values[i]);
    if (!value) {
      errors << words(kNotANumberRow) << " \"" << command.values[i] << "\"\n";
      return ExitCode::kWrongUsage;
    }
    spectrum.levels.at(*first_band + i) = *value;
    spectrum.known_levels.at(*first_band + i) = *value;
  }
  try {
    const elements::ResultSet result = Rate(spectrum.levels, command.impact);
    const std::vector<elements::SingleNumber> numbers = Numbers(spectrum.known_levels, command.impact);
    if (command.json) {
      WriteJson(ResultJson(result, numbers), out);
    } else {
      WriteRatings(result, numbers, out);
    }
    return ExitCode::kDone;
  } catch (const ArithmeticFailure& failure) {
    WriteMessage(failure.UserMessage(), words, errors);
    return ExitCode::kFailed;
  }
}

}  // namespace velmar::cli
