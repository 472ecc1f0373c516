#include "documents/office_reports.h"

#include <system_error>
#include <utility>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "presentation/export/document_provenance.h"
#include "presentation/export/report_chart.h"
#include "presentation/export/report_section.h"
#include "presentation/reports/excel_report.h"
#include "presentation/reports/word_report.h"
#include "storage/files/whole_file.h"
#include "storage/project/project_writer.h"

namespace velmar::documents {
namespace {

constexpr std::size_t kLargestTemplate = std::size_t{64} << 20U;

}  // namespace

std::string ReadTemplate(const std::filesystem::path& templates, std::string_view name) {
  const std::filesystem::path file = templates / name;
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) {
    throw Failure({{kTemplateMissingRow}, {file.string()}}, "no template " + file.string());
  }
  return storage::ReadWhole(file, kLargestTemplate);
}

presentation::ReportRecord RecordOf(const ReportContent& content, bool with_chart) {
  presentation::ReportPictures pictures{.section =
                                            presentation::ReportSectionOf(content.setup, content.words)};
  if (with_chart) {
    pictures.chart = presentation::ReportChartOf(content.setup, content.result, content.words);
  }
  presentation::ReportRecord record = presentation::ReportRecordOf(
      content.setup, content.result, {content.totals.thickness_mm, content.totals.surface_mass_kg_m2},
      content.words, std::move(pictures), {}, ProvenanceOfContent(content));
  AddConfidence(record, content.confidence, content.words);
  return record;
}

presentation::Provenance ProvenanceOfContent(const ReportContent& content) {
  return presentation::ProvenanceOf(storage::WriteProject(content.setup), content.file, content.sources);
}

presentation::PaginaDiStampa PageOf(const ReportContent& content) {
  presentation::PaginaDiStampa page = presentation::PaginaDi(
      content.setup, {content.totals.thickness_mm, content.totals.surface_mass_kg_m2}, &content.result,
      content.words, presentation::WholeChartOf(content.setup, content.result, content.words),
      content.confidence);
  TellProvenance(page, content.setup, content.words, ProvenanceOfContent(content));
  return page;
}

std::string WordReportBytes(const std::filesystem::path& templates, const ReportContent& content) {
  const presentation::ReportRecord record = RecordOf(content, true);
  presentation::WrittenReport report = presentation::WriteWordReport(
      ReadTemplate(templates, presentation::WordTemplateName(record.family)), record);
  if (!report.unknown_placeholders.empty() && content.tell) {
    MessageLine line = {kUnknownPlaceholdersRow};
    for (const std::string& name : report.unknown_placeholders) line.emplace_back(" " + name);
    content.tell({line});
  }
  return std::move(report.bytes);
}

std::string ExcelReportBytes(const std::filesystem::path& templates, const ReportContent& content) {
  return presentation::WriteExcelReport(ReadTemplate(templates, presentation::kExcelTemplateName),
                                        RecordOf(content, false));
}

}  // namespace velmar::documents
