#pragma once

#include "presentation/documents/workbook.h"
#include "presentation/texts/calculation_data.h"
#include "presentation/texts/paper_text.h"

namespace velmar::presentation {

/// Adds a sheet with `data`: fields, tables and references below each other; nothing for data without a
/// title. What reads as a number becomes one; of other values the typography is that of `language`.
void WriteDataSheet(Workbook& workbook, const CalculationData& data, DocumentLanguage language);

}  // namespace velmar::presentation
