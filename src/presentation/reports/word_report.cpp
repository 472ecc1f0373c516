#include "presentation/reports/word_report.h"

#include <utility>
#include <vector>

#include "foundation/message_rows.h"
#include "presentation/documents/word_content.h"
#include "presentation/documents/word_document.h"
#include "presentation/reports/word_placeholders.h"

namespace velmar::presentation {
namespace {

/// Keeps or removes what stands between two markers.
void Settle(WordDocument& document, bool keep, const BlockMarkers& block, std::set<std::string>& unpaired) {
  unpaired.merge(document.Unpaired(block.start, block.end));
  if (!keep) document.RemoveBlock(block.start, block.end);
  document.RemoveMarker(block.start);
  document.RemoveMarker(block.end);
}

std::vector<WordContent> DataContent(const CalculationData& told, DocumentLanguage language) {
  const CalculationData data = ForPaper(told, language);
  using Kind = WordContent::Kind;
  std::vector<WordContent> content;
  if (data.title.empty()) return content;
  content.push_back({.kind = Kind::kChapter, .text = data.title});
  DataTable fields{.weights = {1.0, 2.4}};
  for (const DataField& field : data.fields) fields.rows.push_back({field.caption, field.value});
  if (!fields.rows.empty())
    content.push_back({.kind = Kind::kTable, .table = std::move(fields), .keeps_with_next = true});
  for (const DataTable& table : data.tables) {
    content.push_back({.kind = Kind::kHeading, .text = table.title});
    content.push_back({.kind = Kind::kTable, .table = table});
  }
  content.push_back({.kind = Kind::kHeading, .text = data.references_title});
  for (const std::string& reference : data.references)
    content.push_back({.kind = Kind::kText, .text = reference});
  return content;
}

}  // namespace

std::string WithLanguage(std::string_view name, std::optional<DocumentLanguage> language) {
  const std::size_t point = name.rfind('.');
  const char* behind = !language || *language == DocumentLanguage::kItalian ? ""
                       : *language == DocumentLanguage::kEnglish            ? "_en"
                                                                            : "_it_en";
  return std::string(name.substr(0, point)) + behind + std::string(name.substr(point));
}

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
  WrittenReport report;
  const auto settle = [&](bool keep, const BlockMarkers& block) {
    Settle(document, keep, block, report.unpaired_markers);
  };
  settle(record.has_bands, kBandsBlock);
  settle(!record.hanger.empty(), kHangerBlock);
  settle(!record.information[elements::kNotesRow].value.empty(), kNotesBlock);
  settle(!record.information[elements::kAttachmentRow].value.empty(), kAttachmentBlock);
  settle(record.signs, kSignatureBlock);
  document.RepeatRows(InformationPattern(record));
  document.RepeatRows(StructurePattern(record));
  if (record.chart) document.ReplaceByPicture("P1_RISULTATOGRAFICO", *record.chart);
  if (record.section.wide) document.ReplaceByPicture("P2_DISEGNO", *record.section.wide);
  if (record.logo) document.ReplaceByPicture("STUDIO_LOGO", *record.logo);
  if (record.signature) document.ReplaceByPicture("STUDIO_FIRMA", *record.signature);
  document.ReplaceByContent("P3_DATI", DataContent(record.data, record.language));
  document.Replace(TextPlaceholders(record));
  document.SetProperties(record.properties);
  report.unknown_placeholders = document.Left();
  report.bytes = document.Bytes();
  return report;
}

Message WrittenReport::Remarks() const {
  Message remarks;
  const auto add = [&](MessageRow row, const std::set<std::string>& names) {
    if (names.empty()) return;
    MessageLine line = {row};
    for (const std::string& name : names) line.emplace_back(" " + name);
    remarks.push_back(std::move(line));
  };
  add(kUnknownPlaceholdersRow, unknown_placeholders);
  add(kTemplateUnpairedRow, unpaired_markers);
  return remarks;
}

}  // namespace velmar::presentation
