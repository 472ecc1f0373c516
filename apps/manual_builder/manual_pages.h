#pragma once

#include <QRectF>
#include <QString>
#include <QStringList>
#include <QTextDocument>
#include <map>
#include <vector>

#include "presentation/manual/manual_headings.h"

class QPagedPaintDevice;
class QPainter;
class QTextBlock;

namespace velmar::manual {

/// A heading on its page.
struct PlacedHeading {
  presentation::ManualHeading heading{};
  int page = 0;      ///< from 0
  double top = 0.0;  ///< on the sheet, points from its upper edge
};

/// Words that lead to a heading.
struct PlacedLink {
  int page = 0;
  QRectF place{};  ///< on the sheet, points from its upper left corner
  std::string anchor{};
};

/// What a page of a document of A4 is made of: its margins and the line at its foot.
struct PageLook {
  static constexpr QSizeF kPage{595.0, 842.0};
  static constexpr double kSideMargin = 62.0;
  static constexpr double kTopMargin = 56.0;
  static constexpr double kFootHeight = 56.0;
  static constexpr QSizeF kText{kPage.width() - 2 * kSideMargin, kPage.height() - kTopMargin - kFootHeight};
};

/// Draws the line at the foot of a page. `number` is what stands on the right.
void PaintFoot(QPainter& painter, const QString& product, const QString& number);

/// The text of the user manual set for A4: chapters that begin on a page of their own, headings that stay
/// with their text, pictures that stay with their caption and shrink a little where they so find room on a
/// page, tables with lines. Lengths in points. The title of the manual stands on its front page and is left
/// out here.
class ManualPages {
 public:
  /// @param markdown the manual's text
  /// @param folder where its pictures lie
  ManualPages(const QString& markdown, const QString& folder);

  int Count() const { return document_.pageCount(); }

  /// The pictures that the text names and the folder does not hold.
  const QStringList& MissingPictures() const { return missing_pictures_; }

  /// Whether the last line of the text stands on a page.
  bool HoldsWholeText() const;

  /// The first picture whose caption stands on another page, empty when there is none.
  QString CaptionAlone() const;

  /// Every heading on its page.
  const std::vector<PlacedHeading>& Headings() const { return headings_; }
  /// Every link to a heading.
  const std::vector<PlacedLink>& Links() const { return links_; }

  /// On which pages, from 0, `term` stands as a whole word, and how often.
  std::map<int, int> PagesOf(const QString& term) const;

  /// Paints page `page` on a painter whose unit is the point.
  void PaintPage(QPainter& painter, int page) const;

 private:
  void LeaveOutTitle();
  void DressBlocks();
  void DressPictures(const QString& folder);
  void DressTables();
  void KeepTogether();
  void MoveToNextPage(const QTextBlock& block);
  void FitPicture(const QTextBlock& block);
  double TopOf(const QTextBlock& block) const;
  void FindHeadings();
  void FindLinks();

  mutable QTextDocument document_;
  QStringList missing_pictures_{};
  std::vector<PlacedHeading> headings_{};
  std::vector<PlacedLink> links_{};
};

}  // namespace velmar::manual
