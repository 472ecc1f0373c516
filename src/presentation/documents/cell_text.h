#pragma once

#include <string>

#include "presentation/documents/worksheet.h"

namespace velmar::presentation {

/// How many lines `text` takes in a cell `width` characters wide that breaks long texts.
int LinesOf(const std::string& text, double width);

/// Makes the row as high as `text` needs in the cells of columns `first` to `last`, joined; a row that is
/// high enough stays.
void FitHeight(Worksheet& sheet, int row, const std::string& text, int first, int last);

}  // namespace velmar::presentation
