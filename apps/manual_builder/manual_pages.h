#pragma once

#include <QString>
#include <QStringList>
#include <QTextDocument>

class QPagedPaintDevice;
class QPainter;

namespace velmar::manual {

/// The user manual set for A4: headings that stay with their text, pictures as wide as the text, tables with
/// lines, a number on every page. Lengths in points.
class ManualPages {
 public:
  /// @param markdown the manual's text
  /// @param folder where its pictures lie
  /// @param product the name at the foot of each page
  ManualPages(const QString& markdown, const QString& folder, QString product);

  int Count() const { return document_.pageCount(); }

  /// The pictures that the text names and the folder does not hold.
  const QStringList& MissingPictures() const { return missing_pictures_; }

  /// Whether the last line of the text stands on a page.
  bool HoldsWholeText() const;

  /// Paints every page on `device`, which is an A4 page without margins.
  /// @return whether all could be painted
  bool PaintOn(QPagedPaintDevice& device) const;

 private:
  void DressBlocks();
  void DressPictures(const QString& folder);
  void DressTables();
  void KeepTogether();
  void PaintPage(QPainter& painter, int page) const;

  mutable QTextDocument document_;
  QString product_;
  QStringList missing_pictures_;
};

}  // namespace velmar::manual
