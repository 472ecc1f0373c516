#pragma once

#include <QWidget>

#include "presentation/drawing/curve_chart.h"
#include "shell/fields/boxes.h"

namespace velmar::shell {

/// Shows a curve chart (`Picture1`). The mouse over a band shows its frequency and values; the context menu
/// copies the picture or saves it.
class ChartView : public QWidget {
  Q_OBJECT
 public:
  /// @param speech outlives the view
  explicit ChartView(const Speech& speech, QWidget* parent = nullptr);

  void Show(const presentation::CurveChart& chart);

  QSize sizeHint() const override { return {640, 380}; }
  QSize minimumSizeHint() const override { return {320, 180}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  QString BandText(std::size_t band) const;
  presentation::CurveChart Plain() const;
  QImage Picture(double scale) const;
  void Save(bool as_svg);

  const Speech& speech_;
  presentation::CurveChart chart_;
};

}  // namespace velmar::shell
