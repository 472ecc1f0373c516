#pragma once

#include "presentation/documents/placeholders.h"
#include "presentation/documents/word_document.h"
#include "presentation/reports/report_record.h"

namespace velmar::presentation {

/// What takes the place of each placeholder that stands for one text. Levels with one decimal and a comma.
Placeholders TextPlaceholders(const ReportRecord& record);

/// The rows of the layer or component table.
RowPattern StructurePattern(const ReportRecord& record);

/// The rows of the project information that hold something; notes and attachment have their own places.
RowPattern InformationPattern(const ReportRecord& record);

/// "12,5", with more sheets than one "2 x 12,5"; empty for none.
std::string ThicknessText(const StructureRow& row);

}  // namespace velmar::presentation
