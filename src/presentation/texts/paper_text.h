#pragma once

#include <string>
#include <string_view>

#include "elements/studio_profile.h"
#include "presentation/texts/calculation_data.h"

namespace velmar::presentation {

using elements::DocumentLanguage;

/// `text`, which the program composed, as paper sets it: a true minus before numbers, a dash for " -- ", ΔRw
/// and ΔLw, a narrow space before units that no line break takes away, and in English a decimal point between
/// digits. Words stay; texts that somebody typed are not for this.
std::string ForPaper(std::string_view text, DocumentLanguage language = DocumentLanguage::kItalian);

/// The same for the number of a cell; a cell that holds words stays as it is.
std::string CellForPaper(const std::string& cell, DocumentLanguage language = DocumentLanguage::kItalian);

/// Whether `cell` holds a number, or several as in "2 x 12,5".
bool IsNumberCell(std::string_view cell);

/// `data` for paper: its fields and the numbers of its tables.
CalculationData ForPaper(CalculationData data, DocumentLanguage language);

/// A text in both languages, the Italian one first; once where they agree. A colon at the end stays at the
/// end.
/// @param between what parts them
std::string InBoth(const std::string& italian, const std::string& english,
                   const std::string& between = " / ");
CalculationData InBoth(CalculationData italian, const CalculationData& english);

/// Words of both languages, for captions.
Words InBoth(Words italian, Words english);

}  // namespace velmar::presentation
