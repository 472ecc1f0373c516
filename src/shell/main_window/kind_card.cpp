#include "shell/main_window/kind_card.h"

#include <QEvent>
#include <QMenu>
#include <QPainter>
#include <QToolButton>

#include "shell/windows/dark_outlines.h"
#include "shell/windows/icons.h"

namespace velmar::shell {
namespace {

constexpr int kIcon = 48;
constexpr int kPadding = 16;
constexpr int kGap = 8;
constexpr int kNarrowest = 140;
constexpr double kCorner = 6.0;
constexpr int kHoverAlpha = 28;

}  // namespace

KindCard::KindCard(const QString& name, const char* icon, const QString& list_tip, QWidget* parent)
    : QAbstractButton(parent), calculations_(new QMenu(this)), list_(new QToolButton(this)) {
  setText(name);
  setIcon(LineIcon(icon));
  setAccessibleName(name);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  list_->setMenu(calculations_);
  list_->setPopupMode(QToolButton::InstantPopup);
  list_->setAutoRaise(true);
  list_->setArrowType(Qt::DownArrow);
  list_->setStyleSheet("QToolButton::menu-indicator { image: none; }");
  list_->setFocusPolicy(Qt::TabFocus);
  list_->setToolTip(list_tip);
  list_->setAccessibleName(name + ": " + list_tip);
}

QSize KindCard::sizeHint() const {
  const int words = fontMetrics().horizontalAdvance(text()) + 2 * kPadding;
  return {std::max(kNarrowest, words), 2 * kPadding + kIcon + kGap + 2 * fontMetrics().height()};
}

void KindCard::resizeEvent(QResizeEvent* event) {
  QAbstractButton::resizeEvent(event);
  const int side = fontMetrics().height() + kGap;
  list_->setGeometry(width() - side - 4, 4, side, side);
}

bool KindCard::event(QEvent* event) {
  if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave) update();
  return QAbstractButton::event(event);
}

void KindCard::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QPalette& colours = palette();
  const bool marked = underMouse() || hasFocus();
  painter.setPen(
      QPen(marked ? colours.color(QPalette::Highlight) : QuietOutline(colours), hasFocus() ? 2.0 : 1.0));
  painter.setBrush(colours.color(QPalette::Base));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kCorner, kCorner);
  if (underMouse() || isDown()) {
    QColor tint = colours.color(QPalette::Highlight);
    tint.setAlpha(isDown() ? 2 * kHoverAlpha : kHoverAlpha);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tint);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kCorner, kCorner);
  }
  const int line = fontMetrics().height();
  const int top = (height() - kIcon - kGap - line) / 2;
  icon().paint(&painter, QRect((width() - kIcon) / 2, top, kIcon, kIcon));
  painter.setPen(colours.color(QPalette::Text));
  painter.drawText(QRect(0, top + kIcon + kGap, width(), line), Qt::AlignCenter, text());
}

}  // namespace velmar::shell
