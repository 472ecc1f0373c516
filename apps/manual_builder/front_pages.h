#pragma once

#include <QString>
#include <vector>

#include "manual_builder/manual_pages.h"

class QPainter;

namespace velmar::manual {

/// What stands before the text: the front page and the contents.
class FrontPages {
 public:
  /// @param subtitle under the title: what the product is
  /// @param edition at the foot of the front page
  FrontPages(QString title, QString subtitle, QString edition, const std::vector<PlacedHeading>& headings);

  int Count() const;

  /// Paints page `page` on a painter whose unit is the point. Numbers of pages count the front pages too.
  void PaintPage(QPainter& painter, int page) const;

  /// The lines of the contents as links.
  std::vector<PlacedLink> Links() const;

 private:
  struct Line {
    PlacedHeading heading{};
    int page = 0;
    double top = 0.0;
  };

  void PaintFront(QPainter& painter) const;

  QString title_;
  QString subtitle_;
  QString edition_;
  std::vector<Line> lines_{};
};

}  // namespace velmar::manual
