#pragma once

#include <iosfwd>

#include "calculation/totals.h"
#include "cli/outcome_json.h"
#include "elements/result_set.h"
#include "foundation/message.h"
#include "presentation/texts/words.h"

namespace velmar::cli {

/// The result as a table for a person: the calculation, thickness and surface mass, one line a band, the
/// ratings.
void WriteResult(const CalculationTexts& texts, const elements::ResultSet& result,
                 const calculation::Totals& totals, const presentation::Words& words, std::ostream& out);

/// The single-number ratings alone, one a line, each with its unit.
void WriteRatings(const elements::ResultSet& result, std::ostream& out);

/// The lines of a box.
void WriteMessage(const Message& message, const presentation::Words& words, std::ostream& out);

}  // namespace velmar::cli
