#pragma once

#include <QPointF>
#include <QSizeF>

namespace velmar::presentation {

/// What a printer says of its paper. Sizes in twips, 1440 an inch.
struct PrinterPaper {
  QSizeF paper_twips{};
  QSizeF printable_twips{};
};

/// How a page stands on its target.
struct PageScale {
  QSizeF paper_inches{};
  QPointF unprintable_inches{};  ///< margin that the printer cannot reach, each side
  double factor = 0.0;           ///< f: inches of the target to an inch of paper
};

/// `PreparaPagina`: the scale at which the whole paper fits a target of `target_inches`; it follows the
/// narrower side, so a landscape paper's height on a landscape target's. 0 for a paper without size.
PageScale PreparaPagina(const PrinterPaper& paper, const QSizeF& target_inches);

}  // namespace velmar::presentation
