#pragma once

#include "elements/project_information.h"
#include "storage/project/family_part.h"
#include "storage/project/line_cursor.h"
#include "storage/project/line_writer.h"

namespace velmar::storage {

/// Lines 2 to 17: caption and value of each row of the project information. In the value of row 5, the notes,
/// each line break is a "{". Blanks at both ends are left out, as the reader would do.
void WriteInformation(LineWriter& out, const elements::ProjectInformation& information);
/// Rows 6 and 7 stand in files from version code 5 on; for older ones they stay as they are.
void ReadInformation(LineCursor& lines, int version_code, elements::ProjectInformation& information);

/// Lines 18 to 20: family, variant, orientation.
void WriteStoredCalculation(LineWriter& out, const StoredCalculation& stored);
StoredCalculation ReadStoredCalculation(LineCursor& lines);

}  // namespace velmar::storage
