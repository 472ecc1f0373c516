#include "shell/page_parts/share_bar.h"

#include <QPainter>
#include <algorithm>

#include "foundation/decimal.h"
#include "shell/windows/dark_outlines.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr double kWhole = 100.0;
/// Below this a share is told with a decimal, and as "< 0,1" where it would be none.
constexpr double kSmall = 10.0;
constexpr double kSmallestTold = 0.1;

}  // namespace

ShareBar::ShareBar(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ShareBar::Show(const std::optional<double>& percent) {
  percent_ = percent;
  setAccessibleDescription(Text());
  update();
}

QString ShareBar::Text() const {
  if (!percent_) return {};
  if (*percent_ > 0.0 && *percent_ < kSmallestTold) return QStringLiteral("< 0,1 %");
  return FromUtf8(FormatFixed(*percent_, *percent_ < kSmall ? 1 : 0)) + " %";
}

QSize ShareBar::sizeHint() const {
  return {fontMetrics().horizontalAdvance(QStringLiteral("< 0,1 % ")) * 6 / 5, fontMetrics().height() + 6};
}

void ShareBar::paintEvent(QPaintEvent* /*event*/) {
  if (!percent_) return;
  QPainter painter(this);
  const int text_width = fontMetrics().horizontalAdvance(QStringLiteral("< 0,1 % "));
  const QRectF track(0.0, height() / 4.0, std::max(0, width() - text_width - 4), height() / 2.0);
  painter.fillRect(track, palette().color(QPalette::AlternateBase));
  QRectF bar = track;
  bar.setWidth(track.width() * std::clamp(*percent_ / kWhole, 0.0, 1.0));
  painter.fillRect(bar, palette().color(QPalette::Highlight));
  painter.setPen(QuietOutline(palette()));
  painter.drawRect(track.adjusted(0.0, 0.0, -1.0, -1.0));
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter, Text());
}

}  // namespace velmar::shell
