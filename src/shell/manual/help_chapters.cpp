#include "shell/manual/help_chapters.h"

#include <QWidget>
#include <algorithm>
#include <array>

namespace velmar::shell {
namespace {

constexpr std::array kChapters = {
    HelpChapter{"Inizio", kFirstChapter},
    HelpChapter{"FormLoaderIniziale", kFirstChapter},
    HelpChapter{"About_VELMAR", kFirstChapter},
    HelpChapter{"Form3", "il-primo-calcolo"},
    HelpChapter{"Varianti", "varianti"},
    HelpChapter{"Disegno", "gli-strati-come-blocchi"},
    HelpChapter{"prnFrame1", "il-grafico"},
    HelpChapter{"Form4", "leggere-il-risultato"},
    HelpChapter{"FrameIndici", "tutti-gli-indici"},
    HelpChapter{"FrameNote", "quanto-è-sicuro"},
    HelpChapter{"FrameSecondoParere", "secondo-parere"},
    HelpChapter{"FinestraPerche", "secondo-parere"},
    HelpChapter{"TabellaFacciata", "inserire-le-parti"},
    HelpChapter{"Form11", "progetti"},
    HelpChapter{"LavoroNonSalvato", "progetti"},
    HelpChapter{"Form2", "la-lista-dei-materiali"},
    HelpChapter{"UsoMateriale", "la-lista-dei-materiali"},
    HelpChapter{"FormSceltaMateriali", "l-albero-dei-materiali"},
    HelpChapter{"Form5", "aggiungere-e-modificare-un-materiale"},
    HelpChapter{"Form6", "aggiungere-e-modificare-un-materiale"},
    HelpChapter{"Form7", "risultati-salvati"},
    HelpChapter{"Form9", "libreria-delle-strutture-misurate"},
    HelpChapter{"Form10", "libreria-delle-strutture-misurate"},
    HelpChapter{"FormMisura", "misure-proprie"},
    HelpChapter{"Form8", "confronto-con-il-risultato"},
    HelpChapter{"Form12", "relazioni-e-stampa"},
    HelpChapter{"Dialog", "relazioni-e-stampa"},
    HelpChapter{"profilo_studio", "profilo-dello-studio-e-lingua"},
};

}  // namespace

std::span<const HelpChapter> HelpChapters() { return kChapters; }

std::string_view ChapterOf(elements::Calculation calculation) {
  using enum elements::Family;
  using elements::Orientation;
  const elements::CalculationRow& row = elements::RowOf(calculation);
  if (row.glazing) return "vetri-e-vetrocamere";
  if (row.orientation == Orientation::kHorizontalSingle || row.orientation == Orientation::kHorizontalDouble)
    return "solai";
  switch (row.family) {
    case kSingle:
      return "pareti-semplici";
    case kDouble:
      return "pareti-doppie";
    case kSharp:
      return "pareti-leggere-doppie";
    case kSea:
    case kSeaSingle:
      return "bilancio-di-energia-sea";
    case kLining:
      return "controplaccaggi";
    case kCeiling:
      return "controsoffitti";
    case kFacade:
      return "facciate";
    case kImpact:
      return "solai";
    case kMultilayer:
      return "multistrato-generico";
  }
  return kFirstChapter;
}

std::string_view ChapterFor(const QWidget* focus, std::optional<elements::Calculation> calculation) {
  for (const QWidget* part = focus; part != nullptr; part = part->parentWidget()) {
    const std::string name = part->objectName().toStdString();
    const auto* found = std::ranges::find(kChapters, name, &HelpChapter::control);
    if (found != kChapters.end()) return found->anchor;
  }
  return calculation ? ChapterOf(*calculation) : kFirstChapter;
}

}  // namespace velmar::shell
