#pragma once

#include <QRectF>
#include <QSizeF>
#include <functional>
#include <vector>

#include "presentation/drawing/printed_page.h"

class QPainter;

namespace velmar::presentation {

/// What found no room on the first page.
struct PageRest {
  std::vector<PageField> fields{};  ///< values of many lines, in full
  std::size_t elements_from = 0;    ///< row of the table of elements where it goes on; 0: it is all there
  std::vector<double> weights{};    ///< of that table's columns
  bool first_left = false;
  bool structure = false;  ///< the whole list of layers
  bool section = false;    ///< the drawing, whose numbers would be too small there
};

/// The height of the foot of a page, with the studio's line where it has one.
double FootHeight(const PaginaDiStampa& page);

/// Draws the studio's head at the top of `area` and gives the height it took; 0 without one.
double DrawStudioHead(QPainter& painter, const QRectF& area, const PageStudio& studio);

/// How the pages draw their section.
SectionOptions PageSectionOptions(const PaginaDiStampa& page);

/// The height of the numbers of a section drawn into `area`, in pixels of 1/96 inch.
double SectionLabelPixels(const QRectF& area, const PaginaDiStampa& page, const SectionOptions& options);

/// The pages behind the first: what found no room there, then the inputs of the calculation and its
/// references. Tables break between rows and repeat their heads. In tenths of a point, as the first page is.
class PageAnnex {
 public:
  /// @param paper,page outlive this only until the constructor returns
  PageAnnex(const QSizeF& paper, const PaginaDiStampa& page, const PageRest& rest);

  int PageCount() const { return static_cast<int>(pages_.size()); }

  /// @param index from 0, of the pages behind the first
  void Draw(QPainter& painter, int index) const;

  /// The foot of page `index`, 0 the first of all.
  void DrawFoot(QPainter& painter, int index) const;

 private:
  using Piece = std::function<void(QPainter& painter)>;

  void AddPage();
  QRectF Room() const;
  /// Begins a new page unless `height` finds room on this one.
  void Need(double height);
  void AddText(const std::string& text, double points, bool bold, double space_above);
  void AddTable(const PageTable& table, const std::vector<double>& weights, bool first_left,
                std::size_t first_row);
  void AddRest(const PaginaDiStampa& page, const PageRest& rest);
  void AddData(const CalculationData& data);
  void AddSignature(const PageStudio& studio);

  QSizeF paper_;
  std::string title_;
  PageFoot foot_;
  std::string studio_foot_;
  std::vector<std::vector<Piece>> pages_{};
  double foot_height_ = 0.0;
  double top_ = 0.0;  ///< of what is left of the last page
};

}  // namespace velmar::presentation
