#include "shell/commands/report_commands.h"

#include <QDir>
#include <QFileDialog>
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

/// The record of the result that stands, with the chart as it is shown.
presentation::ReportRecord RecordOf(const Desk& desk, const presentation::MaterialSources& sources) {
  const elements::Setup& setup = desk.open.Setup();
  const elements::ResultSet& result = *desk.open.Result();
  const calculation::Totals& totals = desk.open.CurrentTotals();
  const std::optional<presentation::CurveChart>& shown = desk.results.Chart();
  presentation::ReportRecord record = presentation::ReportRecordOf(
      setup, result, {totals.thickness_mm, totals.surface_mass_kg_m2}, desk.speech.words,
      {.chart = presentation::ReportChartOf(setup, result, desk.speech.words, shown),
       .section = presentation::ReportSectionOf(setup, desk.speech.words)},
      shown ? presentation::ComparedStructures{shown->laboratory_name, shown->in_situ_name}
            : presentation::ComparedStructures{},
      presentation::ProvenanceOf(storage::WriteProject(setup), desk.files.File().filename().string(),
                                 sources));
  AddConfidence(record, validation::ConfidenceOf(setup, result, desk.accuracy.Get()), desk.speech.words);
  return record;
}

/// The template's path; one that is missing is told.
std::optional<std::filesystem::path> Template(Kind kind, const std::filesystem::path& templates,
                                              const Desk& desk) {
  const elements::Family family = RowOf(*desk.open.Setup().calculation).family;
  std::filesystem::path file = templates / (kind == Kind::kWord ? presentation::WordTemplateName(family)
                                                                : presentation::kExcelTemplateName);
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

void Export(Kind kind, const std::filesystem::path& templates, const presentation::MaterialSources& sources,
            const Desk& desk) {
  if (!desk.open.Setup().calculation || !desk.open.Result()) return;
  const std::optional<std::filesystem::path> pattern = Template(kind, templates, desk);
  if (!pattern) return;
  const std::optional<std::filesystem::path> file = Target(kind, desk);
  if (!file) return;
  try {
    const QString told = Write(kind, *pattern, RecordOf(desk, sources), *file, desk.speech.words);
    desk.files.DocumentWritten(*file);
    desk.speech.boxes.tell_written(told, *file);
  } catch (const Failure& failure) {
    desk.speech.boxes.tell(Tone::kCritical, Text(desk.speech.words, failure.UserMessage()));
  } catch (const std::exception&) {
    desk.speech.boxes.tell(Tone::kCritical, Text(desk.speech.words, kFillingFailedRow));
  }
}

}  // namespace

void ReportCommands::ExportWord(const Desk& desk) { Export(Kind::kWord, templates_, sources_, desk); }

void ReportCommands::ExportExcel(const Desk& desk) { Export(Kind::kExcel, templates_, sources_, desk); }

void ReportCommands::ReportProjects(const Desk& desk) {
  const auto tools = [this, &desk] {
    return documents::ScheduleTools{.words = desk.speech.words,
                                    .materials = materials_,
                                    .sources = sources_,
                                    .templates = templates_,
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
       .written = [&desk](const std::filesystem::path& file) { desk.files.DocumentWritten(file); }},
      &desk.window);
  if (!desk.files.File().empty()) dialog.Add({FromUtf8(desk.files.File().string())});
  dialog.exec();
}

void ReportCommands::CheckTemplate(const Desk& desk) {
  const QString chosen = desk.speech.boxes.choose_file_to_open(
      {.title = Text(desk.speech.words, kCheckTemplateMenuRow).remove(QChar(0x2026)),
       .filter = Text(desk.speech.words, kTemplateFilesRow) + " (*.docx *.xlsx)",
       .start = FromUtf8(templates_.string())});
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
