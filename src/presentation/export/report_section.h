#pragma once

#include "elements/setup.h"
#include "presentation/reports/report_record.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {

/// The section of `setup` for reports, each picture as vectors with a bitmap of 300 dots an inch beside it.
/// The small one is missing where its numbers would not be legible; both for an element without layers. A
/// QGuiApplication must exist.
ReportSection ReportSectionOf(const elements::Setup& setup, const Words& words,
                              DocumentLanguage language = DocumentLanguage::kItalian);

}  // namespace velmar::presentation
