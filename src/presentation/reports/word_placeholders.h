#pragma once

#include <array>
#include <set>
#include <string>
#include <string_view>

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

/// The pairs of markers around a block of a template.
struct BlockMarkers {
  std::string_view start{};
  std::string_view end{};
};
inline constexpr BlockMarkers kBandsBlock{"P1_FREQ_START", "P1_FREQ_END"};
inline constexpr BlockMarkers kHangerBlock{"P2_PENDINO_START", "P2_PENDINO_END"};
inline constexpr BlockMarkers kNotesBlock{"P1_NOTE_START", "P1_NOTE_END"};
inline constexpr BlockMarkers kAttachmentBlock{"P1_ALLEGATO_START", "P1_ALLEGATO_END"};
/// What closes a report: what is to be known of its numbers, and who signs.
inline constexpr BlockMarkers kSignatureBlock{"P1_FIRMA_START", "P1_FIRMA_END"};
inline constexpr std::array kBlockMarkers = {kBandsBlock, kHangerBlock, kNotesBlock, kAttachmentBlock,
                                             kSignatureBlock};

/// Every placeholder that reports know.
std::set<std::string> KnownPlaceholders();

/// "12,5", with more sheets than one "2 x 12,5"; empty for none.
std::string ThicknessText(const StructureRow& row);

}  // namespace velmar::presentation
