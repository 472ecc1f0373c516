#pragma once

#include <string>

#include "elements/result_set.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {

/// How `result` stands to the required rating `required_db`, in decibels with at most one decimal: "limite
/// 50: mancano 4", "limite 63: superato di 2" for impact sound, "limite 50: rispettato, margine 3". Empty
/// where the result has no rating to compare.
std::string RequirementText(double required_db, const elements::ResultSet& result, const Words& words);

}  // namespace velmar::presentation
