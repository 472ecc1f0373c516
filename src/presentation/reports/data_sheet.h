#pragma once

#include "presentation/documents/workbook.h"
#include "presentation/texts/calculation_data.h"

namespace velmar::presentation {

/// Adds a sheet with `data`: fields, tables and references below each other; nothing for data without a
/// title. What reads as a number becomes one.
void WriteDataSheet(Workbook& workbook, const CalculationData& data);

}  // namespace velmar::presentation
