#include "cli/drawn/office_formats.h"

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

namespace velmar::cli {
namespace {

constexpr std::size_t kLargestTemplate = std::size_t{64} << 20U;

std::string ReadTemplate(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) {
    throw Failure({{kTemplateMissingRow}, {file.string()}}, "no template " + file.string());
  }
  return storage::ReadWhole(file, kLargestTemplate);
}

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

}  // namespace

presentation::Provenance ProvenanceOfContent(const ReportContent& content,
                                             elements::DocumentLanguage language) {
  return presentation::ProvenanceOf(storage::WriteProject(content.setup), content.file, content.sources,
                                    language);
}

application::DocumentStyle StyleOfContent(const application::DocumentPlaces& places,
                                          const ReportContent& content) {
  return application::StyleOf(places, content.language, content.words, content.tell);
}

std::string WordReportBytes(const application::DocumentPlaces& places, const ReportContent& content) {
  const application::DocumentStyle style = StyleOfContent(places, content);
  const presentation::ReportRecord record = RecordOf(content, style, true);
  presentation::WrittenReport report = presentation::WriteWordReport(
      ReadTemplate(application::TemplateFile(places, presentation::WordTemplateName(record.family), style)),
      record);
  if (!report.unknown_placeholders.empty() && content.tell) {
    MessageLine line = {kUnknownPlaceholdersRow};
    for (const std::string& name : report.unknown_placeholders) line.emplace_back(" " + name);
    content.tell({line});
  }
  return std::move(report.bytes);
}

std::string ExcelReportBytes(const application::DocumentPlaces& places, const ReportContent& content) {
  const application::DocumentStyle style = StyleOfContent(places, content);
  return presentation::WriteExcelReport(
      ReadTemplate(application::TemplateFile(places, presentation::kExcelTemplateName, style)),
      RecordOf(content, style, false));
}

}  // namespace velmar::cli
