#pragma once

#include <QWidget>

#include "presentation/drawing/curve_chart.h"
#include "shell/windows/boxes.h"

namespace velmar::shell {

/// Shows a curve chart (`Picture1`). The mouse over a band, or the arrows left and right, show the values of
/// all curves there; the context menu copies or saves. Ctrl and the wheel, or + and −, bring the chart
/// closer; dragging, or Shift and the arrows, move it; a double click, Esc or 0 show it whole again.
class ChartView : public QWidget {
  Q_OBJECT
 public:
  /// @param speech outlives the view
  explicit ChartView(const Speech& speech, QWidget* parent = nullptr);

  /// Shows `chart`, as close as the one before was.
  void Show(const presentation::CurveChart& chart);

  QSize sizeHint() const override { return {640, 380}; }
  QSize minimumSizeHint() const override { return {320, 180}; }

 signals:
  /// The values under the mouse or the marked band in one line; empty: none is marked.
  void BandRead(const QString& values);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void Mark(const std::optional<std::size_t>& band);
  bool TakeArrow(int key, bool moving);
  void MarkByKey(std::size_t band);
  void StepBand(int by);
  void SeeThrough(const presentation::ChartWindow& window);
  void Zoom(double factor);
  QString BandText(std::size_t band, const QString& between) const;
  QRectF Plot() const;
  presentation::CurveChart Plain() const;
  QImage Picture(double scale) const;
  void CopyNumbers() const;
  void Save(bool as_svg);

  const Speech& speech_;
  presentation::CurveChart chart_;
  presentation::ChartWindow window_{};
  std::optional<QPointF> dragged_from_{};
};

}  // namespace velmar::shell
