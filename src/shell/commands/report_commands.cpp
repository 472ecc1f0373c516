#include "shell/commands/report_commands.h"

#include <system_error>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "presentation/export/report_chart.h"
#include "presentation/reports/excel_report.h"
#include "presentation/reports/report_record.h"
#include "presentation/reports/word_report.h"
#include "shell/commands/beside_project.h"
#include "shell/commands/command_table.h"
#include "shell/fields/phrases.h"
#include "shell/results/results_panel.h"
#include "storage/files/open_elsewhere.h"
#include "storage/files/whole_file.h"

namespace velmar::shell {
namespace {

constexpr std::size_t kTemplateLimit = std::size_t{64} * 1024 * 1024;

enum class Kind { kWord, kExcel };

/// The record of the result that stands, with the chart as `window` shows it.
presentation::ReportRecord RecordOf(const WindowServices& services, const QWidget* window) {
  const elements::Setup& setup = services.open.Setup();
  const elements::ResultSet& result = *services.open.Result();
  const calculation::Totals& totals = services.open.CurrentTotals();
  const std::optional<presentation::CurveChart> shown = ShownChart(window);
  return presentation::ReportRecordOf(
      setup, result, {totals.thickness_mm, totals.surface_mass_kg_m2}, services.words,
      presentation::ReportChartOf(setup, result, services.words, shown),
      shown ? presentation::ComparedStructures{shown->laboratory_name, shown->in_situ_name}
            : presentation::ComparedStructures{});
}

/// The template's path; one that is missing is told.
std::optional<std::filesystem::path> Template(Kind kind, const std::filesystem::path& templates,
                                              const WindowServices& services) {
  const elements::Family family = RowOf(*services.open.Setup().calculation).family;
  std::filesystem::path file = templates / (kind == Kind::kWord ? presentation::WordTemplateName(family)
                                                                : presentation::kExcelTemplateName);
  std::error_code error;
  if (std::filesystem::is_regular_file(file, error)) return file;
  services.boxes.tell(Tone::kCritical,
                      Text(services.words, kTemplateMissingRow) + '\n' + FromUtf8(file.string()));
  return std::nullopt;
}

/// The file to write; nothing when the user cancels.
std::optional<std::filesystem::path> Target(Kind kind, const WindowServices& services,
                                            const QWidget* window) {
  const std::string ending = kind == Kind::kWord ? ".docx" : ".xlsx";
  const QString files = kind == Kind::kWord ? Text(services.words, kWordFilesRow) : QStringLiteral("Excel");
  const QString chosen =
      services.boxes.choose_file_to_save({.title = Text(services.words, kSaveAsRow),
                                          .filter = files + " (*" + FromUtf8(ending) + ')',
                                          .start = BesideProject(window, FromUtf8(ending))});
  if (chosen.isEmpty()) return std::nullopt;
  if (chosen.endsWith(FromUtf8(ending), Qt::CaseInsensitive)) return ToUtf8(chosen);
  // The dialog has asked about the name without its ending only.
  std::filesystem::path file = ToUtf8(chosen) + ending;
  std::error_code error;
  const QString question = Text(services.words, kReplaceDocumentRow) + '\n' + FromUtf8(file.string());
  if (std::filesystem::exists(file, error) && !services.boxes.ask(question)) return std::nullopt;
  return file;
}

/// Fills the template and writes the file. @return what the user is told
QString Write(Kind kind, const std::filesystem::path& pattern, const presentation::ReportRecord& record,
              const std::filesystem::path& file, const presentation::Words& words) {
  if (storage::IsOpenElsewhere(file))
    throw Failure({{kFillingFailedRow}}, "open elsewhere: " + file.string());
  const std::string bytes = storage::ReadWhole(pattern, kTemplateLimit);
  QString told = Text(words, kDocumentSavedRow);
  if (kind == Kind::kExcel) {
    storage::WriteWhole(file, presentation::WriteExcelReport(bytes, record));
    return told;
  }
  const presentation::WrittenReport report = presentation::WriteWordReport(bytes, record);
  storage::WriteWhole(file, report.bytes);
  if (report.unknown_placeholders.empty()) return told;
  told += '\n' + Text(words, kUnknownPlaceholdersRow);
  for (const std::string& name : report.unknown_placeholders) told += ' ' + FromUtf8(name);
  return told;
}

void Export(Kind kind, const std::filesystem::path& templates, const WindowServices& services,
            const QWidget* window) {
  if (!services.open.Setup().calculation || !services.open.Result()) return;
  const std::optional<std::filesystem::path> pattern = Template(kind, templates, services);
  if (!pattern) return;
  const std::optional<std::filesystem::path> file = Target(kind, services, window);
  if (!file) return;
  try {
    services.boxes.tell(Tone::kInformation,
                        Write(kind, *pattern, RecordOf(services, window), *file, services.words));
  } catch (const Failure& failure) {
    services.boxes.tell(Tone::kCritical, Text(services.words, failure.UserMessage()));
  } catch (const std::exception&) {
    services.boxes.tell(Tone::kCritical, Text(services.words, kFillingFailedRow));
  }
}

}  // namespace

void AddReportCommands(WindowServices& services, const std::filesystem::path& templates) {
  services.command_windows[CommandId::kExportWord] = [templates, &services](QWidget* window) {
    Export(Kind::kWord, templates, services, window);
  };
  services.command_windows[CommandId::kExportExcel] = [templates, &services](QWidget* window) {
    Export(Kind::kExcel, templates, services, window);
  };
}

}  // namespace velmar::shell
