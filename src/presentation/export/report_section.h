#pragma once

#include <cstdint>
#include <optional>

#include "elements/setup.h"
#include "presentation/documents/picture.h"
#include "presentation/reports/report_record.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {

/// The section of `setup` for reports, each picture as vectors with a bitmap of 300 dots an inch beside it.
/// The small one is missing where its numbers would not be legible; both for an element without layers. A
/// QGuiApplication must exist.
ReportSection ReportSectionOf(const elements::Setup& setup, const Words& words,
                              DocumentLanguage language = DocumentLanguage::kItalian);

/// The strips of the section of `setup` in small, for a row of a table: 26 mm by 11 mm, as vectors with a
/// bitmap beside it. Nothing for an element without layers. A QGuiApplication must exist.
std::optional<Picture> SectionThumbnailOf(const elements::Setup& setup, const Words& words);

/// How wide the section of a Word report is, in English Metric Units.
std::int64_t ReportSectionWidth();

}  // namespace velmar::presentation
