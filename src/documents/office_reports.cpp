#include "documents/office_reports.h"

#include <utility>

#include "documents/template_file.h"
#include "presentation/export/document_provenance.h"
#include "presentation/export/report_chart.h"
#include "presentation/export/report_section.h"
#include "presentation/reports/excel_report.h"
#include "presentation/reports/word_report.h"
#include "storage/project/project_writer.h"

namespace velmar::documents {

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
  return WithTemplate(templates / presentation::WordTemplateName(record.family),
                      [&](const std::string& bytes) {
                        presentation::WrittenReport report = presentation::WriteWordReport(bytes, record);
                        const Message remarks = report.Remarks();
                        if (!remarks.empty() && content.tell) content.tell(remarks);
                        return std::move(report.bytes);
                      });
}

std::string ExcelReportBytes(const std::filesystem::path& templates, const ReportContent& content) {
  return WithTemplate(templates / presentation::kExcelTemplateName, [&](const std::string& bytes) {
    return presentation::WriteExcelReport(bytes, RecordOf(content, false));
  });
}

}  // namespace velmar::documents
