#pragma once

#include <iosfwd>
#include <span>

#include "calculation/runs/totals.h"
#include "cli/output/outcome_json.h"
#include "elements/result_set.h"
#include "elements/single_numbers.h"
#include "foundation/message.h"
#include "presentation/texts/words.h"

namespace velmar::cli {

/// The result as a table for a person: the calculation, thickness and surface mass, one line a band, the
/// ratings.
/// @param numbers every rating of the result's spectrum
void WriteResult(const CalculationTexts& texts, const elements::ResultSet& result,
                 std::span<const elements::SingleNumber> numbers, const calculation::Totals& totals,
                 const presentation::Words& words, std::ostream& out);

/// The single-number ratings alone, one a line, each with its unit: those of the calculation first, then
/// those of `numbers` that it does not show.
void WriteRatings(const elements::ResultSet& result, std::span<const elements::SingleNumber> numbers,
                  std::ostream& out);

/// The lines of a box.
void WriteMessage(const Message& message, const presentation::Words& words, std::ostream& out);

}  // namespace velmar::cli
