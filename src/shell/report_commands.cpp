#include "shell/report_commands.h"

#include "foundation/failure.h"
#include "presentation/export/report_chart.h"
#include "presentation/reports/excel_report.h"
#include "presentation/reports/report_record.h"
#include "presentation/reports/word_report.h"
#include "shell/phrases.h"
#include "storage/files/whole_file.h"

namespace velmar::shell {
namespace {

constexpr MessageRow kSaveAsRow{377};
constexpr MessageRow kSavedRow{270};
constexpr MessageRow kTemplateMissingRow{271};
constexpr MessageRow kFillingFailedRow{272};
constexpr std::size_t kTemplateLimit = std::size_t{64} * 1024 * 1024;

enum class Kind { kWord, kExcel };

std::string Fill(Kind kind, const std::string& pattern, const WindowServices& services) {
  const calculation::Totals& totals = services.open.CurrentTotals();
  const presentation::ReportRecord record = presentation::ReportRecordOf(
      services.open.Setup(), *services.open.Result(), {totals.thickness_mm, totals.surface_mass_kg_m2},
      services.words,
      presentation::ReportChartOf(services.open.Setup(), *services.open.Result(), services.words));
  return kind == Kind::kWord ? presentation::WriteWordReport(pattern, record).bytes
                             : presentation::WriteExcelReport(pattern, record);
}

void Export(Kind kind, const std::filesystem::path& templates, const WindowServices& services) {
  const auto& setup = services.open.Setup();
  if (!setup.calculation || !services.open.Result()) return;
  const std::filesystem::path pattern =
      templates / (kind == Kind::kWord ? presentation::WordTemplateName(RowOf(*setup.calculation).family)
                                       : presentation::kExcelTemplateName);
  std::error_code error;
  if (!std::filesystem::exists(pattern, error)) {
    services.boxes.tell(Tone::kCritical,
                        Text(services.words, kTemplateMissingRow) + '\n' + FromUtf8(pattern.string()));
    return;
  }
  const std::string ending = kind == Kind::kWord ? ".docx" : ".xlsx";
  const QString chosen = services.boxes.choose_file_to_save(
      {.title = Text(services.words, kSaveAsRow),
       .filter = kind == Kind::kWord ? "Microsoft Word (*.docx)" : "Microsoft Excel (*.xlsx)"});
  if (chosen.isEmpty()) return;
  std::filesystem::path file = ToUtf8(chosen);
  if (file.extension() != ending) file += ending;
  try {
    storage::WriteWhole(file, Fill(kind, storage::ReadWhole(pattern, kTemplateLimit), services));
    services.boxes.tell(Tone::kInformation, Text(services.words, kSavedRow));
  } catch (const Failure& failure) {
    services.boxes.tell(Tone::kCritical, Text(services.words, failure.UserMessage()));
  } catch (const std::exception&) {
    services.boxes.tell(Tone::kCritical, Text(services.words, kFillingFailedRow));
  }
}

}  // namespace

void AddReportCommands(WindowServices& services, const std::filesystem::path& templates) {
  services.command_windows[CommandId::kExportWord] = [templates, &services](QWidget*) {
    Export(Kind::kWord, templates, services);
  };
  services.command_windows[CommandId::kExportExcel] = [templates, &services](QWidget*) {
    Export(Kind::kExcel, templates, services);
  };
}

}  // namespace velmar::shell
