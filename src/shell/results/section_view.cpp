#include "shell/results/section_view.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <algorithm>
#include <vector>

#include "foundation/decimal.h"
#include "presentation/drawing/section_drawing.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using presentation::Strip;

/// The first strip of each numbered layer, in the order of the drawing.
std::vector<const Strip*> NumberedStrips(const presentation::Section& section) {
  std::vector<const Strip*> strips;
  for (const Strip& strip : section.strips) {
    if (strip.number != 0 && (strips.empty() || strips.back()->number != strip.number))
      strips.push_back(&strip);
  }
  return strips;
}

}  // namespace

SectionView::SectionView(QWidget* parent) : QWidget(parent) {
  setObjectName("Disegno");
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
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
  if (!hasFocus()) return;
  QStyleOptionFocusRect option;
  option.initFrom(this);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void SectionView::Step(int steps) {
  const std::vector<const Strip*> strips = NumberedStrips(section_);
  if (strips.empty()) return;
  const auto now = std::ranges::find(strips, highlighted_, &Strip::number);
  const int last = static_cast<int>(strips.size()) - 1;
  const int before = steps > 0 ? -1 : last + 1;
  const int from = now == strips.end() ? before : static_cast<int>(now - strips.begin());
  const Strip& strip = *strips.at(static_cast<std::size_t>(std::clamp(from + steps, 0, last)));
  Highlight(strip.place);
  emit LayerHovered(strip.place);
  setAccessibleDescription(QString::number(strip.number) + ' ' + FromUtf8(strip.name) + ", " +
                           FromUtf8(FormatShortest(strip.thickness_mm)) + " mm");
  QAccessibleEvent told(this, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&told);
}

void SectionView::Choose(const std::optional<presentation::LayerPlace>& place) {
  const bool air = place && !place->group && presentation::NumberOf(section_, *place) == 0;
  if (place && !air) emit LayerChosen(*place);
}

void SectionView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
      return Step(1);
    case Qt::Key_Left:
    case Qt::Key_Up:
      return Step(-1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space: {
      const auto strips = NumberedStrips(section_);
      const auto lit = std::ranges::find(strips, highlighted_, &Strip::number);
      if (lit != strips.end()) Choose((*lit)->place);
      return;
    }
    default:
      QWidget::keyPressEvent(event);
  }
}

void SectionView::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  Highlight(std::nullopt);
  emit LayerHovered(std::nullopt);
}

void SectionView::mousePressEvent(QMouseEvent* event) {
  QWidget::mousePressEvent(event);
  if (event->button() == Qt::LeftButton)
    Choose(presentation::LayerAt(event->position(), QRectF(rect()), section_, font()));
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
