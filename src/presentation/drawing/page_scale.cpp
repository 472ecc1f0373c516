#include "presentation/drawing/page_scale.h"

#include <algorithm>

namespace velmar::presentation {
namespace {

constexpr double kTwipsPerInch = 1440.0;

}  // namespace

PageScale PreparaPagina(const PrinterPaper& paper, const QSizeF& target_inches) {
  PageScale scale;
  scale.paper_inches = paper.paper_twips / kTwipsPerInch;
  if (scale.paper_inches.isEmpty()) return scale;
  const QSizeF unprintable = (scale.paper_inches - paper.printable_twips / kTwipsPerInch) / 2.0;
  scale.unprintable_inches = {unprintable.width(), unprintable.height()};
  scale.factor = std::min(target_inches.width() / scale.paper_inches.width(),
                          target_inches.height() / scale.paper_inches.height());
  return scale;
}

}  // namespace velmar::presentation
