#include "shell/commands/paper_commands.h"

#include "presentation/drawing/printed_page.h"
#include "presentation/export/report_chart.h"
#include "shell/project/project_files.h"
#include "shell/results/results_panel.h"
#include "validation/second_opinion.h"

namespace velmar::shell {
namespace {

printing::PrintedDocument DocumentOn(const Desk& desk) {
  return DocumentOf(desk.open, desk.speech.words, desk.results.Chart(), desk.files.File(),
                    validation::ConfidenceOf(desk.open.Setup(), desk.open.Result(), desk.accuracy.Get()));
}

}  // namespace

printing::PrintedDocument DocumentOf(const calculation::OpenCalculation& open,
                                     const presentation::Words& words,
                                     const std::optional<presentation::CurveChart>& chart,
                                     const std::filesystem::path& project, const Message& confidence) {
  const elements::Setup& setup = open.Setup();
  const calculation::Totals& totals = open.CurrentTotals();
  const auto& result = open.Result();
  printing::PrintedDocument document;
  document.page = presentation::PaginaDi(
      setup, {totals.thickness_mm, totals.surface_mass_kg_m2}, result ? &*result : nullptr, words,
      result ? presentation::WholeChartOf(setup, *result, words, chart) : std::nullopt, confidence);
  document.title = document.page.title;
  document.pdf_start = BesideProject(project, QStringLiteral(".pdf"));
  return document;
}

printing::PrintingBoxes PaperBoxes(const Speech& speech) {
  const auto tell = [&speech](Tone tone) {
    return [&speech, tone](QWidget*, const QString& text) { speech.boxes.tell(tone, text); };
  };
  return printing::ScreenBoxes(speech.words, tell(Tone::kInformation), tell(Tone::kCritical));
}

void PaperCommands::Preview(const Desk& desk) {
  printing::ShowPreview(DocumentOn(desk), printer_, boxes_, desk.speech.words, &desk.window);
}

void PaperCommands::Print(const Desk& desk) {
  printing::PrintDocument(DocumentOn(desk), printer_, boxes_, desk.speech.words, &desk.window);
}

void PaperCommands::ChoosePrinter(QWidget* parent) { printing::ChoosePrinter(printer_, boxes_, parent); }

}  // namespace velmar::shell
