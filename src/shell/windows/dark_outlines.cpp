#include "shell/windows/dark_outlines.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

namespace velmar::shell {
namespace {

constexpr int kHalfLightness = 128;
constexpr double kInkShare = 0.35;
constexpr double kDisabledShare = 0.18;
constexpr double kCorner = 2.0;

bool IsDark(const QPalette& palette) { return palette.color(QPalette::Window).lightness() < kHalfLightness; }

/// Between the window and its ink.
QColor Between(const QPalette& palette, double share) {
  const QColor ground = palette.color(QPalette::Window);
  const QColor ink = palette.color(QPalette::WindowText);
  const auto mixed = [share](int from, int to) { return from + static_cast<int>(share * (to - from)); };
  return {mixed(ground.red(), ink.red()), mixed(ground.green(), ink.green()),
          mixed(ground.blue(), ink.blue())};
}

QColor OutlineOn(const QStyleOption& option) {
  return Between(option.palette, option.state & QStyle::State_Enabled ? kInkShare : kDisabledShare);
}

void Outline(const QStyleOption& option, bool round, QPainter& painter) {
  // The focus has an outline of its own.
  if (!IsDark(option.palette) || (option.state & QStyle::State_HasFocus)) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(OutlineOn(option));
  painter.setBrush(Qt::NoBrush);
  const QRectF box = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  if (round) {
    painter.drawEllipse(box);
  } else {
    painter.drawRoundedRect(box, kCorner, kCorner);
  }
  painter.restore();
}

}  // namespace

QColor QuietOutline(const QPalette& palette) {
  return IsDark(palette) ? Between(palette, kDisabledShare) : palette.color(QPalette::Mid);
}

void DarkOutlines::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element == PE_FrameLineEdit || element == PE_IndicatorCheckBox) Outline(*option, false, *painter);
  if (element == PE_IndicatorRadioButton) Outline(*option, true, *painter);
}

void DarkOutlines::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control == CC_ComboBox) Outline(*option, false, *painter);
}

void AddDarkOutlines(QApplication& application) {
  if (application.style()->name() != "fusion") return;
  // The application owns its style.
  QApplication::setStyle(new DarkOutlines("fusion"));  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks)
}

}  // namespace velmar::shell
