#include "shell/results/section_view.h"

#include <QMouseEvent>
#include <QPainter>

#include "presentation/drawing/section_drawing.h"

namespace velmar::shell {

SectionView::SectionView(QWidget* parent) : QWidget(parent) {
  setObjectName("Disegno");
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SectionView::Show(presentation::Section section) {
  section_ = std::move(section);
  update();
}

void SectionView::Highlight(const std::optional<presentation::LayerPlace>& place) {
  const int number = place ? presentation::NumberOf(section_, *place) : 0;
  if (number == highlighted_) return;
  highlighted_ = number;
  update();
}

void SectionView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setFont(font());
  presentation::DrawSection(painter, QRectF(rect()), section_, {.highlighted_number = highlighted_});
}

void SectionView::mouseMoveEvent(QMouseEvent* event) {
  const auto place = presentation::LayerAt(event->position(), QRectF(rect()), section_, font());
  Highlight(place);
  emit LayerHovered(place);
}

void SectionView::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  Highlight(std::nullopt);
  emit LayerHovered(std::nullopt);
}

}  // namespace velmar::shell
