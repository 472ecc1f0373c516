#include "shell/commands/paper_commands.h"

#include "presentation/drawing/printed_page.h"
#include "presentation/export/document_provenance.h"
#include "presentation/export/report_chart.h"
#include "shell/project/project_files.h"
#include "shell/results/results_panel.h"
#include "shell/windows/phrases.h"
#include "storage/project/project_writer.h"
#include "validation/second_opinion.h"

namespace velmar::shell {
printing::PrintedDocument DocumentOf(const calculation::OpenCalculation& open, const PaperOrigin& origin,
                                     const std::optional<presentation::CurveChart>& chart,
                                     const QString& pdf_start, const Message& confidence) {
  const elements::Setup& setup = open.Setup();
  const calculation::Totals& totals = open.CurrentTotals();
  const auto& result = open.Result();
  const application::DocumentStyle& style = origin.style;
  const std::optional<presentation::CurveChart> whole =
      result ? presentation::WholeChartOf(setup, *result, style.Captions(), chart) : std::nullopt;
  const std::string project = storage::WriteProject(setup);
  const auto page_in = [&](const elements::Setup& told, const presentation::Words& words,
                           elements::DocumentLanguage language) {
    presentation::PaginaDiStampa page =
        presentation::PaginaDi(told, {totals.thickness_mm, totals.surface_mass_kg_m2},
                               result ? &*result : nullptr, words, whole, confidence, language);
    const presentation::Provenance provenance =
        presentation::ProvenanceOf(project, origin.project_file, origin.sources, language);
    TellProvenance(page, told, words, provenance, language);
    TellStudio(page, told, PageStudioOf(style), words, provenance);
    return page;
  };
  printing::PrintedDocument document;
  document.page = application::InLanguages(style, setup, page_in);
  if (style.english)
    document.page.section_options = presentation::PaperOptions(setup, style.Captions(), style.language);
  document.title = document.page.title;
  document.pdf_start = pdf_start;
  return document;
}

printing::PrintedDocument PaperCommands::DocumentOn(const Desk& desk) const {
  const auto tell = [&desk](const Message& message) {
    desk.speech.boxes.tell(Tone::kInformation, Text(desk.speech.words, message));
  };
  return DocumentOf(
      desk.open,
      {.style = application::StyleOf(documents_.places, documents_.language, desk.speech.words, tell),
       .project_file = desk.files.File().filename().string(),
       .sources = documents_.sources},
      desk.results.Chart(), desk.files.ProposeDocument(QStringLiteral(".pdf")),
      validation::ConfidenceOf(desk.open.Setup(), desk.open.Result(), desk.accuracy.Get()));
}

printing::PrintingBoxes PaperBoxes(const Speech& speech) {
  const auto tell_written = [&speech](QWidget*, const QString& text, const std::filesystem::path& file) {
    speech.boxes.tell_written(text, file);
  };
  const auto tell_failure = [&speech](QWidget*, const QString& text) {
    speech.boxes.tell(Tone::kCritical, text);
  };
  return printing::ScreenBoxes(speech.words, tell_written, tell_failure);
}

/// The boxes, and the files of `desk` hear of each PDF.
printing::PrintingBoxes PaperCommands::BoxesOn(const Desk& desk) const {
  printing::PrintingBoxes boxes = boxes_;
  boxes.tell_written = [this, &desk](QWidget* parent, const QString& text,
                                     const std::filesystem::path& file) {
    desk.files.DocumentWritten(file);
    boxes_.tell_written(parent, text, file);
  };
  return boxes;
}

void PaperCommands::Preview(const Desk& desk) {
  printing::ShowPreview(DocumentOn(desk), printer_, BoxesOn(desk), desk.speech.words, &desk.window);
}

void PaperCommands::Print(const Desk& desk) {
  printing::PrintDocument(DocumentOn(desk), printer_, boxes_, desk.speech.words, &desk.window);
}

void PaperCommands::ChoosePrinter(QWidget* parent) { printing::ChoosePrinter(printer_, boxes_, parent); }

}  // namespace velmar::shell
