#pragma once

#include <QImage>
#include <QSizeF>
#include <optional>
#include <string>
#include <vector>

#include "elements/result_set.h"
#include "elements/setup.h"
#include "presentation/drawing/curve_chart.h"
#include "presentation/drawing/section.h"
#include "presentation/drawing/section_drawing.h"
#include "presentation/texts/calculation_data.h"
#include "presentation/texts/letterhead.h"
#include "presentation/texts/paper_text.h"
#include "presentation/texts/structure.h"
#include "presentation/texts/words.h"

class QPainter;

namespace velmar::presentation {

/// A caption and its value, printed as "caption: value".
using PageField = DataField;

/// A table with heads; every row has as many cells as there are heads.
struct PageTable {
  std::vector<std::string> heads{};
  std::vector<std::vector<std::string>> rows{};
};

/// A picture and its size on paper.
struct PagePicture {
  QImage image{};
  QSizeF millimetres{};
};

/// What a studio puts on its pages: a head on the first, a line at the foot of all, who signs at the end.
struct PageStudio {
  Letterhead words{};
  PagePicture logo{};
  PagePicture signature{};
  std::string signer{};          ///< who signs; the project may name somebody
  std::string signer_caption{};  ///< over the name
  std::string date{};            ///< beside it
  bool signs = true;             ///< not where another page of the document is signed

  bool HasHead() const { return words.HasHead() || !logo.image.isNull(); }
  /// Whether somebody of the studio signs.
  bool Signs() const {
    return signs && (!words.signer.empty() || !words.register_number.empty() || !signature.image.isNull());
  }
};

/// What stands at the foot of every page.
struct PageFoot {
  std::string left{};  ///< project, code, date, program
  std::string page{};  ///< "pagina"
  std::string of{};    ///< "di"
  int before = 0;      ///< pages of the document that stand before these
  int all = 0;         ///< pages of the whole document; 0: these are all
};

/// What stands on the pages of a calculation: the first tells the result, those behind it what found no room
/// there and the inputs. UTF-8.
struct PaginaDiStampa {
  std::string title{};
  std::vector<PageField> information{};  ///< of the project; a value may hold line breaks
  std::vector<PageField> fields{};       ///< of the calculation
  std::optional<CurveChart> chart{};
  std::vector<std::string> results{};  ///< bold lines
  std::string further_results{};       ///< terms and classes beyond the rated bands, in small
  std::string results_note{};          ///< what there is to know of them, in small, with line breaks
  PageTable bands{};                   ///< frequency, level, reference; no heads: no table
  PageTable elements{};                ///< parts of a facade, or a lining with its base
  std::string structure_heading{};
  std::vector<StructureBlock> structure{};
  std::vector<std::string> structure_notes{};  ///< lines behind the layers
  Section section{};
  SectionOptions section_options{};
  CalculationData data{};  ///< every input, on the pages behind the first
  PageFoot foot{};
  PageStudio studio{};
  std::string author{};   ///< of the document, among its properties
  std::string subject{};  ///< the same
  std::string program{};  ///< the same, with its version
};

/// The totals of an element as the window shows them.
struct PageTotals {
  double thickness_mm = 0.0;
  double surface_mass_kg_m2 = 0.0;
};

/// The page of a calculation. @param result nothing before a run: the page then shows the set-up alone.
/// @param chart the chart as shown, with its overlays; without one it is made of `result`
/// @param confidence what is known of the error of `result`
/// @param language of numbers; the words are those of `words`
PaginaDiStampa PaginaDi(const elements::Setup& setup, const PageTotals& totals,
                        const elements::ResultSet* result, const Words& words,
                        std::optional<CurveChart> chart = std::nullopt, const Message& confidence = {},
                        DocumentLanguage language = DocumentLanguage::kItalian);

/// The same pages in both languages: every text of `italian` with that of `english` beside or below it, once
/// where they agree. Chart and section are those of `italian`.
PaginaDiStampa InBoth(PaginaDiStampa italian, const PaginaDiStampa& english);

/// Says on `page`, which is that of `setup`, where its numbers come from.
void TellProvenance(PaginaDiStampa& page, const elements::Setup& setup, const Words& words,
                    const Provenance& provenance, DocumentLanguage language = DocumentLanguage::kItalian);

/// Puts `studio` on `page`, which is that of `setup`: where the project names nobody who signs the studio
/// does.
void TellStudio(PaginaDiStampa& page, const elements::Setup& setup, PageStudio studio, const Words& words,
                const Provenance& provenance);

/// How many pages `page` takes on paper of `paper_inches`; 0 for a paper without size.
int PageCountOf(const QSizeF& paper_inches, const PaginaDiStampa& page);

/// `ComponiPagina`: draws page `index` of `page` on a paper of `paper_inches` whose corner is the painter's
/// origin; one inch of paper takes `units_per_inch` of the painter's units (the target's resolution times the
/// factor of PreparaPagina). Everything is drawn as vectors. Long lists take smaller text, down to 7 points,
/// and more columns; what still finds no room goes on behind the first page, tables with their heads.
void ComponiPagina(QPainter& painter, double units_per_inch, const QSizeF& paper_inches,
                   const PaginaDiStampa& page, int index = 0);

}  // namespace velmar::presentation
