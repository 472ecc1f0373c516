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

presentation::ReportRecord RecordOf(const ReportContent& content, const application::DocumentStyle& style,
                                    bool with_chart) {
  const presentation::Words captions = style.Captions();
  presentation::ReportPictures pictures{
      .section = presentation::ReportSectionOf(content.setup, captions, style.language)};
  if (with_chart) pictures.chart = presentation::ReportChartOf(content.setup, content.result, captions);
  const auto record_in = [&](const elements::Setup& setup, const presentation::Words& words,
                             elements::DocumentLanguage language) {
    presentation::ReportRecord record = presentation::ReportRecordOf(
        setup, content.result, {content.totals.thickness_mm, content.totals.surface_mass_kg_m2}, words,
        pictures, {}, ProvenanceOfContent(content, language));
    record.language = language;
    AddConfidence(record, content.confidence, words);
    return record;
  };
  presentation::ReportRecord record = application::InLanguages(style, content.setup, record_in);
  PutStudio(record, style.studio.words, style.studio.logo, style.studio.signature);
  return record;
}

presentation::Provenance ProvenanceOfContent(const ReportContent& content,
                                             elements::DocumentLanguage language) {
  return presentation::ProvenanceOf(storage::WriteProject(content.setup), content.file, content.sources,
                                    language);
}

application::DocumentStyle StyleOfContent(const application::DocumentPlaces& places,
                                          const ReportContent& content) {
  return application::StyleOf(places, content.language, content.words, content.tell);
}

presentation::PaginaDiStampa PageOf(const ReportContent& content, const application::DocumentStyle& style) {
  const std::optional<presentation::CurveChart> chart =
      presentation::WholeChartOf(content.setup, content.result, style.Captions());
  const auto page_in = [&](const elements::Setup& setup, const presentation::Words& words,
                           elements::DocumentLanguage language) {
    presentation::PaginaDiStampa page =
        presentation::PaginaDi(setup, {content.totals.thickness_mm, content.totals.surface_mass_kg_m2},
                               &content.result, words, chart, content.confidence, language);
    const presentation::Provenance provenance = ProvenanceOfContent(content, language);
    TellProvenance(page, setup, words, provenance, language);
    TellStudio(page, setup, PageStudioOf(style), words, provenance);
    return page;
  };
  presentation::PaginaDiStampa page = application::InLanguages(style, content.setup, page_in);
  if (style.english)
    page.section_options = presentation::PaperOptions(content.setup, style.Captions(), style.language);
  return page;
}

std::string WordReportBytes(const application::DocumentPlaces& places, const ReportContent& content) {
  return WordReportBytes(places, StyleOfContent(places, content), content);
}

std::string WordReportBytes(const application::DocumentPlaces& places,
                            const application::DocumentStyle& style, const ReportContent& content,
                            bool signs) {
  presentation::ReportRecord record = RecordOf(content, style, true);
  record.signs = signs;
  return WithTemplate(application::TemplateFile(places, presentation::WordTemplateName(record.family), style),
                      [&](const std::string& bytes) {
                        presentation::WrittenReport report = presentation::WriteWordReport(bytes, record);
                        const Message remarks = report.Remarks();
                        if (!remarks.empty() && content.tell) content.tell(remarks);
                        return std::move(report.bytes);
                      });
}

std::string ExcelReportBytes(const application::DocumentPlaces& places, const ReportContent& content) {
  const application::DocumentStyle style = StyleOfContent(places, content);
  return WithTemplate(application::TemplateFile(places, presentation::kExcelTemplateName, style),
                      [&](const std::string& bytes) {
                        return presentation::WriteExcelReport(bytes, RecordOf(content, style, false));
                      });
}

}  // namespace velmar::documents
