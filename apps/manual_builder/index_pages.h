#pragma once

#include <QString>
#include <string>
#include <vector>

#include "manual_builder/manual_pages.h"

class QPainter;

namespace velmar::manual {

/// The alphabetical index behind the text, in two columns.
class IndexPages {
 public:
  /// @param terms what is looked up, in any order
  /// @param text where it is looked up
  /// @param first number of the text's first page, from 1
  /// @throws std::runtime_error when the text holds a term nowhere
  IndexPages(std::vector<std::string> terms, const ManualPages& text, int first);

  int Count() const;

  /// Paints page `page` on a painter whose unit is the point.
  void PaintPage(QPainter& painter, int page) const;

 private:
  struct Line {
    QString term{};
    QString pages{};
  };

  std::vector<Line> lines_{};
};

}  // namespace velmar::manual
