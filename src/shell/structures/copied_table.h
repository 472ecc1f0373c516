#pragma once

#include <QString>

#include "presentation/texts/words.h"
#include "shell/structures/structure_sources.h"

class QMimeData;

namespace velmar::structures {

/// `table` for the clipboard: plain text with a tabulator between fields, and the same as an HTML table.
/// There a spreadsheet finds the numbers themselves, whatever its decimal sign, and a text that looks like a
/// number or a formula stays a text. The caller owns it.
QMimeData* ClipboardOf(const CopiedTable& table, const presentation::Words& words);

}  // namespace velmar::structures
