#include "presentation/texts/requirement_text.h"

#include <cmath>

#include "elements/requirement.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"

namespace velmar::presentation {
namespace {

std::string Decibels(double value) { return FormatShortest(RoundToEven(value, 1)); }

}  // namespace

std::string RequirementText(double required_db, const elements::ResultSet& result, const Words& words) {
  const std::optional<double> margin = elements::MarginTo(required_db, result);
  if (!margin) return {};
  const double shown = RoundToEven(*margin, 1);
  const std::string limit = words(kLimitRow) + ' ' + Decibels(required_db) + ": ";
  if (shown > 0.0) return limit + words(kRequirementMetRow) + ' ' + Decibels(shown);
  if (shown == 0.0) return limit + words(kRequirementJustMetRow);
  const MessageRow row = result.lnw      ? kRequirementExceededRow
                         : shown == -1.0 ? kRequirementLacksOneRow
                                         : kRequirementLacksRow;
  return limit + words(row) + ' ' + Decibels(-shown);
}

}  // namespace velmar::presentation
