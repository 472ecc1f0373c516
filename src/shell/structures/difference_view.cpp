#include "shell/structures/difference_view.h"

#include <QPainter>

namespace velmar::structures {

DifferenceView::DifferenceView(const QString& name, QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("ConfrontoDifferenze"));
  setAccessibleName(name);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void DifferenceView::Show(const presentation::DifferenceChart& chart) {
  chart_ = chart;
  update();
}

QSize DifferenceView::sizeHint() const {
  return {fontMetrics().averageCharWidth() * 30, fontMetrics().height() * 9};
}

void DifferenceView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setFont(font());
  presentation::DrawDifferenceChart(painter, rect(), chart_);
}

}  // namespace velmar::structures
