#pragma once

#include <iosfwd>
#include <span>
#include <string>

#include <nlohmann/json_fwd.hpp>

#include "calculation/runs/run.h"
#include "calculation/runs/totals.h"
#include "elements/result_set.h"
#include "elements/single_numbers.h"
#include "presentation/texts/words.h"
#include "validation/accuracy.h"

namespace velmar::cli {

/// The texts that name a calculation, as a project file holds them.
struct CalculationTexts {
  std::string family{};
  std::string variant{};
  std::string orientation{};
};

/// A run as one JSON object: the calculation, "status", "messages", the quantities that the calculation
/// writes (a quantity it does not write has no key), "ratings", "thickness" in mm and "surface_mass" in
/// kg/m², and "ranges_left" where the user chose to leave a relation's range. Numbers read back exactly.
/// @param numbers every rating of the result's spectrum
nlohmann::json OutcomeJson(const CalculationTexts& texts, const calculation::RunOutcome& outcome,
                           std::span<const elements::SingleNumber> numbers, const calculation::Totals& totals,
                           const presentation::Words& words);

/// Only what the result holds, under the same keys; "ratings" holds `numbers` under their names and is
/// absent when there are none.
nlohmann::json ResultJson(const elements::ResultSet& result, std::span<const elements::SingleNumber> numbers);

/// {"quantity", "low", "high", "coverage", "n", "group"}: what a laboratory would measure.
nlohmann::json IntervalJson(const validation::Interval& interval);

/// The lines of a box as an array of {"row", "text"}. Words of our own, and literals, have row 0; the line
/// that asks whether to go on is left out, so a question counts once.
nlohmann::json MessageJson(const Message& message, const presentation::Words& words);

/// Writes `json` as one line. Texts that are not UTF-8, which older databases may hold, are written with
/// U+FFFD in place of what is wrong.
void WriteJson(const nlohmann::json& json, std::ostream& out);

/// "ok", "declined", "refused" or "failed".
std::string StatusText(calculation::RunStatus status);

}  // namespace velmar::cli
