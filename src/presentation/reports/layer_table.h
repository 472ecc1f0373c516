#pragma once

#include "presentation/documents/workbook.h"
#include "presentation/reports/report_record.h"

namespace velmar::presentation {

/// The rows of the sheet that the table of layers may take: what stands below belongs to the bands.
inline constexpr int kLayerHeadingRow = 13;
inline constexpr int kFirstLayerRow = 14;
inline constexpr int kLastLayerRow = 34;

/// Writes the table of layers or components into columns A to G: name and description, thickness, surface
/// mass; of a facade rating, area and share. Layers that find no row go on in
/// a sheet of their own. The number of a layer stands before its name without being part of the text.
void WriteLayerTable(Workbook& workbook, const ReportRecord& record);

}  // namespace velmar::presentation
