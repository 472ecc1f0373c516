#include "shell/commands/report_commands.h"

#include <QDir>
#include <QFileDialog>
#include <QStringList>
#include <system_error>

#include "documents/template_file.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "presentation/export/document_provenance.h"
#include "presentation/export/report_chart.h"
#include "presentation/export/report_section.h"
#include "presentation/reports/excel_report.h"
#include "presentation/reports/report_record.h"
#include "presentation/reports/word_report.h"
#include "shell/project/project_files.h"
#include "shell/results/results_panel.h"
#include "shell/schedule/schedule_dialog.h"
#include "shell/windows/phrases.h"
#include "storage/files/open_elsewhere.h"
#include "storage/files/whole_file.h"
#include "storage/project/project_writer.h"
#include "validation/second_opinion.h"

namespace velmar::shell {
namespace {

enum class Kind { kWord, kExcel };

/// What the user is told of a document that was written without something.
using LeftOut = QStringList;

application::DocumentStyle StyleOn(const DocumentServices& documents, const Desk& desk, LeftOut& left_out) {
  return application::StyleOf(documents.places, documents.language, desk.speech.words,
                              [&](const Message& message) { left_out << Text(desk.speech.words, message); });
}

/// The record of the result that stands, with the chart as it is shown.
presentation::ReportRecord RecordOf(const Desk& desk, const DocumentServices& documents,
                                    const application::DocumentStyle& style) {
  const elements::Setup& setup = desk.open.Setup();
  const elements::ResultSet& result = *desk.open.Result();
  const calculation::Totals& totals = desk.open.CurrentTotals();
  const std::optional<presentation::CurveChart>& shown = desk.results.Chart();
  const presentation::ReportPictures pictures{
      .chart = presentation::ReportChartOf(setup, result, style.Captions(), shown),
      .section = presentation::ReportSectionOf(setup, style.Captions(), style.language)};
  const auto record_in = [&](const elements::Setup& told, const presentation::Words& words,
                             elements::DocumentLanguage language) {
    presentation::ReportRecord record = presentation::ReportRecordOf(
        told, result, {totals.thickness_mm, totals.surface_mass_kg_m2}, words, pictures,
        shown ? presentation::ComparedStructures{shown->laboratory_name, shown->in_situ_name}
              : presentation::ComparedStructures{},
        presentation::ProvenanceOf(storage::WriteProject(setup), desk.files.File().filename().string(),
                                   documents.sources, language));
    record.language = language;
    if (shown) AddComparison(record.data, shown->comparison, words);
    AddConfidence(record, validation::ConfidenceOf(setup, result, desk.accuracy.Get()), words);
    return record;
  };
  presentation::ReportRecord record = application::InLanguages(style, setup, record_in);
  PutStudio(record, style.studio.words, style.studio.logo, style.studio.signature);
  return record;
}

/// The template's path; one that is missing is told.
std::optional<std::filesystem::path> Template(Kind kind, const DocumentServices& documents,
                                              const application::DocumentStyle& style, const Desk& desk) {
  const elements::Family family = RowOf(*desk.open.Setup().calculation).family;
  std::filesystem::path file = application::TemplateFile(
      documents.places,
      kind == Kind::kWord ? presentation::WordTemplateName(family) : presentation::kExcelTemplateName, style);
  std::error_code error;
  if (std::filesystem::is_regular_file(file, error)) return file;
  desk.speech.boxes.tell(Tone::kCritical,
                         Text(desk.speech.words, kTemplateMissingRow) + '\n' + FromUtf8(file.string()));
  return std::nullopt;
}

/// The file to write; nothing when the user cancels.
std::optional<std::filesystem::path> Target(Kind kind, const Desk& desk) {
  const QString ending = kind == Kind::kWord ? QStringLiteral(".docx") : QStringLiteral(".xlsx");
  const QString files =
      kind == Kind::kWord ? Text(desk.speech.words, kWordFilesRow) : QStringLiteral("Excel");
  return AskFileToSave(desk.speech,
                       {.title = Text(desk.speech.words, kSaveAsRow),
                        .filter = files + " (*" + ending + ')',
                        .start = desk.files.ProposeDocument(ending)},
                       ending);
}

/// Fills the template and writes the file. @return what the user is told
QString Write(Kind kind, const std::filesystem::path& pattern, const presentation::ReportRecord& record,
              const std::filesystem::path& file, const presentation::Words& words) {
  if (storage::IsOpenElsewhere(file))
    throw Failure({{kFillingFailedRow}}, "open elsewhere: " + file.string());
  QString told = Text(words, kDocumentSavedRow);
  const std::string bytes = documents::WithTemplate(pattern, [&](const std::string& from) {
    if (kind == Kind::kExcel) return presentation::WriteExcelReport(from, record);
    presentation::WrittenReport report = presentation::WriteWordReport(from, record);
    const Message remarks = report.Remarks();
    if (!remarks.empty()) told += '\n' + Text(words, remarks);
    return std::move(report.bytes);
  });
  storage::WriteWhole(file, bytes);
  return told;
}

void Export(Kind kind, const DocumentServices& documents, const Desk& desk) {
  if (!desk.open.Setup().calculation || !desk.open.Result()) return;
  LeftOut left_out;
  const application::DocumentStyle style = StyleOn(documents, desk, left_out);
  const std::optional<std::filesystem::path> pattern = Template(kind, documents, style, desk);
  if (!pattern) return;
  const std::optional<std::filesystem::path> file = Target(kind, desk);
  if (!file) return;
  try {
    const QString told = Write(kind, *pattern, RecordOf(desk, documents, style), *file, desk.speech.words);
    desk.files.DocumentWritten(*file);
    left_out.prepend(told);
    desk.speech.boxes.tell_written(left_out.join('\n'), *file);
  } catch (const Failure& failure) {
    desk.speech.boxes.tell(Tone::kCritical, Text(desk.speech.words, failure.UserMessage()));
  } catch (const std::exception&) {
    desk.speech.boxes.tell(Tone::kCritical, Text(desk.speech.words, kFillingFailedRow));
  }
}

}  // namespace

void ReportCommands::ExportWord(const Desk& desk) { Export(Kind::kWord, documents_, desk); }

void ReportCommands::ExportExcel(const Desk& desk) { Export(Kind::kExcel, documents_, desk); }

void ReportCommands::ReportProjects(const Desk& desk) {
  const auto tools = [this, &desk] {
    return documents::ScheduleTools{.words = desk.speech.words,
                                    .materials = materials_,
                                    .sources = documents_.sources,
                                    .places = documents_.places,
                                    .accuracy = desk.accuracy.Get()};
  };
  const auto choose = [&desk](const FileQuestion& question) {
    return QFileDialog::getOpenFileNames(&desk.window, question.title, question.start, question.filter);
  };
  ScheduleDialog dialog(
      desk.speech,
      {.tools = tools,
       .choose_projects = choose_projects_ ? choose_projects_ : choose,
       .propose = [&desk](const QString& ending) { return desk.files.ProposeDocument(ending); },
       .language = documents_.language,
       .written = [&desk](const std::filesystem::path& file) { desk.files.DocumentWritten(file); }},
      &desk.window);
  if (!desk.files.File().empty()) dialog.Add({FromUtf8(desk.files.File().string())});
  dialog.exec();
}

void ReportCommands::CheckTemplate(const Desk& desk) {
  const QString chosen = desk.speech.boxes.choose_file_to_open(
      {.title = Text(desk.speech.words, kCheckTemplateMenuRow).remove(QChar(0x2026)),
       .filter = Text(desk.speech.words, kTemplateFilesRow) + " (*.docx *.xlsx)",
       .start = FromUtf8(documents_.places.templates.string())});
  if (chosen.isEmpty()) return;
  try {
    const Message findings = documents::CheckTemplateFile(ToUtf8(chosen));
    const QString name = QDir::toNativeSeparators(chosen);
    desk.speech.boxes.tell(findings.empty() ? Tone::kInformation : Tone::kCritical,
                           findings.empty() ? Text(desk.speech.words, kTemplateGoodRow) + ' ' + name
                                            : Text(desk.speech.words, kTemplateCheckedRow) + ' ' + name +
                                                  ":\n" + Text(desk.speech.words, findings));
  } catch (const Failure& failure) {
    desk.speech.boxes.tell(Tone::kCritical, Text(desk.speech.words, failure.UserMessage()));
  }
}

}  // namespace velmar::shell
