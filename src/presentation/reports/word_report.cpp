#include "presentation/reports/word_report.h"

#include "presentation/reports/word_document.h"
#include "presentation/reports/word_placeholders.h"

namespace velmar::presentation {
namespace {

/// Keeps or removes what stands between two markers.
void Settle(WordDocument& document, bool keep, std::string_view start, std::string_view end) {
  if (keep) {
    document.RemoveMarker(start);
    document.RemoveMarker(end);
  } else {
    document.RemoveBlock(start, end);
  }
}

}  // namespace

std::string_view WordTemplateName(elements::Family family) {
  switch (family) {
    case elements::Family::kLining:
    case elements::Family::kCeiling:
      return "Template_calcolo_drav_controp.docx";
    case elements::Family::kFacade:
      return "Template_calcolo_drav_composta.docx";
    default:
      return "Template_calcolo_drav_calc.docx";
  }
}

WrittenReport WriteWordReport(std::string_view docx, const ReportRecord& record) {
  WordDocument document(docx);
  Settle(document, record.has_bands, "P1_FREQ_START", "P1_FREQ_END");
  Settle(document, !record.hanger.empty(), "P2_PENDINO_START", "P2_PENDINO_END");
  document.RepeatRows(InformationPattern(record));
  document.RepeatRows(StructurePattern(record));
  if (record.chart) document.ReplaceByPicture("P1_RISULTATOGRAFICO", *record.chart);
  document.Replace(TextPlaceholders(record));
  WrittenReport report;
  report.unknown_placeholders = document.Left();
  report.bytes = document.Bytes();
  return report;
}

}  // namespace velmar::presentation
