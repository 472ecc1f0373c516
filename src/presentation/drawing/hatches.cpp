#include "presentation/drawing/hatches.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>

#include "presentation/drawing/colours.h"

namespace velmar::presentation {
namespace {

enum class Pattern { kNone, kRising, kFalling, kCrossed, kDots, kAggregate, kFibre, kGrain, kGleam, kCells };

struct Look {
  QColor tint;
  Pattern pattern{};
  QColor line;
  double spacing = 0.0;  // painter's units
};

/// In the order of MaterialKind. Tints are quiet and differ in hue, hatches in form, so that a section reads
/// in black and white too.
constexpr std::array<Look, 15> kLooks = {{
    {{0xF2, 0xF2, 0xF0}, Pattern::kFalling, {0xB4, 0xB4, 0xB0}, 9.0},    // generic
    {{0xF2, 0xD6, 0xC6}, Pattern::kRising, {0xC2, 0x84, 0x68}, 6.0},     // brick
    {{0xDB, 0xDD, 0xDC}, Pattern::kAggregate, {0x8C, 0x92, 0x94}, 9.0},  // concrete
    {{0xF6, 0xF1, 0xE6}, Pattern::kDots, {0xB8, 0xAA, 0x90}, 3.5},       // plaster
    {{0xF4, 0xF6, 0xFA}, Pattern::kDots, {0xA9, 0xB4, 0xC6}, 7.0},       // plasterboard
    {{0xD8, 0xEE, 0xF6}, Pattern::kGleam, {0x7F, 0xB4, 0xCC}, 26.0},     // glass
    {{0xFF, 0xFF, 0xC0}, Pattern::kFibre, {0xC8, 0xB4, 0x50}, 0.0},      // wool
    {{0xFB, 0xEF, 0xF4}, Pattern::kCells, {0xD0, 0xA8, 0xBC}, 7.0},      // foam
    {{0xE6, 0xDC, 0xC4}, Pattern::kAggregate, {0xA3, 0x90, 0x68}, 6.0},  // screed
    {{0xEE, 0xD8, 0xB0}, Pattern::kGrain, {0xBE, 0x98, 0x5E}, 4.5},      // wood
    {{0xCC, 0xD3, 0xDC}, Pattern::kRising, {0x6E, 0x7C, 0x90}, 3.5},     // metal
    {{0xE8, 0xE2, 0xE6}, Pattern::kFalling, {0xA6, 0x98, 0xA4}, 5.0},    // stone
    {{0xD6, 0xE4, 0xD2}, Pattern::kCrossed, {0x92, 0xB0, 0x8C}, 5.0},    // resilient
    {{0xD3, 0xDD, 0xA9}, Pattern::kCrossed, {0x94, 0xA4, 0x52}, 4.0},    // damping
    {kAirColour, Pattern::kNone, kAirColour, 0.0},                       // air
}};

constexpr double kThinnestHatched = 2.5;

void DrawDiagonals(QPainter& painter, const QRectF& strip, double spacing, bool rising) {
  // Anchored at the origin, so that the hatches of neighbouring strips of one material run on.
  const double step = spacing * std::sqrt(2.0);
  const double height = strip.height();
  const double first = rising ? strip.left() + strip.bottom() : strip.left() - strip.bottom();
  const double last = rising ? strip.right() + strip.bottom() : strip.right() - strip.top();
  const double start = (rising ? first - height : first);
  for (double c = std::ceil(start / step) * step; c <= last; c += step) {
    if (rising) {
      painter.drawLine(QPointF(c - strip.bottom(), strip.bottom()), QPointF(c - strip.top(), strip.top()));
    } else {
      painter.drawLine(QPointF(c + strip.top(), strip.top()), QPointF(c + strip.bottom(), strip.bottom()));
    }
  }
}

/// Calls `visit` with the points of a staggered grid.
template <typename Visit>
void ForStaggered(const QRectF& strip, double spacing, const Visit& visit) {
  int row = 0;
  for (double y = strip.top() + spacing / 2.0; y < strip.bottom(); y += spacing * 0.85, ++row) {
    const double shift = row % 2 == 0 ? 0.3 : 0.8;
    int column = 0;
    for (double x = strip.left() + spacing * shift; x < strip.right(); x += spacing, ++column) {
      visit(QPointF(x, y), row * 7 + column * 3);
    }
  }
}

void DrawDots(QPainter& painter, const QRectF& strip, const Look& look) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(look.line);
  ForStaggered(strip, look.spacing, [&](const QPointF& at, int) { painter.drawEllipse(at, 0.65, 0.65); });
}

void DrawAggregate(QPainter& painter, const QRectF& strip, const Look& look) {
  ForStaggered(strip, look.spacing, [&](const QPointF& at, int salt) {
    if (salt % 4 == 0) {
      const double size = look.spacing * 0.28;
      painter.setPen(QPen(look.line, 0.8));
      painter.setBrush(Qt::NoBrush);
      const std::array<QPointF, 3> stone = {at + QPointF(-size, size * 0.7), at + QPointF(size, size * 0.5),
                                            at + QPointF(size * 0.1, -size)};
      painter.drawPolygon(stone.data(), 3);
    } else {
      painter.setPen(Qt::NoPen);
      painter.setBrush(look.line);
      painter.drawEllipse(at, 0.7, 0.7);
    }
  });
}

/// The insulation's wave, from face to face.
void DrawFibre(QPainter& painter, const QRectF& strip, bool horizontal) {
  const double depth = horizontal ? strip.height() : strip.width();
  const double length = horizontal ? strip.width() : strip.height();
  const double pitch = std::clamp(depth * 0.35, 4.0, 16.0);
  const auto point = [&](double along, double across) {
    return horizontal ? QPointF(strip.left() + along, strip.top() + across)
                      : QPointF(strip.left() + across, strip.top() + along);
  };
  QPainterPath wave(point(0.0, 0.0));
  bool out = true;
  for (double along = 0.0; along < length; along += pitch, out = !out) {
    const double from = out ? 0.0 : depth;
    const double to = depth - from;
    wave.cubicTo(point(along + pitch * 0.9, from), point(along + pitch * 0.1, to), point(along + pitch, to));
  }
  painter.drawPath(wave);
}

void DrawGrain(QPainter& painter, const QRectF& strip, double spacing, bool horizontal) {
  const double depth = horizontal ? strip.height() : strip.width();
  int line = 0;
  for (double at = spacing * 0.6; at < depth; at += spacing * (line % 3 == 0 ? 1.4 : 0.8), ++line) {
    if (horizontal) {
      painter.drawLine(QPointF(strip.left(), strip.top() + at), QPointF(strip.right(), strip.top() + at));
    } else {
      painter.drawLine(QPointF(strip.left() + at, strip.top()), QPointF(strip.left() + at, strip.bottom()));
    }
  }
}

void DrawGleam(QPainter& painter, const QRectF& strip, double spacing) {
  ForStaggered(strip, spacing, [&](const QPointF& at, int) {
    painter.drawLine(at, at + QPointF(7.0, -7.0));
    painter.drawLine(at + QPointF(5.0, 1.0), at + QPointF(9.0, -3.0));
  });
}

void DrawCells(QPainter& painter, const QRectF& strip, double spacing) {
  ForStaggered(strip, spacing, [&](const QPointF& at, int) { painter.drawEllipse(at, 1.9, 1.9); });
}

void DrawPattern(QPainter& painter, const QRectF& strip, const Look& look, bool horizontal) {
  painter.setPen(QPen(look.line, 0.8));
  painter.setBrush(Qt::NoBrush);
  switch (look.pattern) {
    case Pattern::kNone:
      return;
    case Pattern::kRising:
      return DrawDiagonals(painter, strip, look.spacing, true);
    case Pattern::kFalling:
      return DrawDiagonals(painter, strip, look.spacing, false);
    case Pattern::kCrossed:
      DrawDiagonals(painter, strip, look.spacing, true);
      return DrawDiagonals(painter, strip, look.spacing, false);
    case Pattern::kDots:
      return DrawDots(painter, strip, look);
    case Pattern::kAggregate:
      return DrawAggregate(painter, strip, look);
    case Pattern::kFibre:
      return DrawFibre(painter, strip, horizontal);
    case Pattern::kGrain:
      return DrawGrain(painter, strip, look.spacing, horizontal);
    case Pattern::kGleam:
      return DrawGleam(painter, strip, look.spacing);
    case Pattern::kCells:
      return DrawCells(painter, strip, look.spacing);
  }
}

}  // namespace

void FillStrip(QPainter& painter, const QRectF& strip, MaterialKind kind, bool horizontal) {
  const Look& look = kLooks.at(static_cast<std::size_t>(kind));
  painter.fillRect(strip, look.tint);
  if (std::min(strip.width(), strip.height()) < kThinnestHatched) return;
  painter.save();
  painter.setClipRect(strip, Qt::IntersectClip);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawPattern(painter, strip, look, horizontal);
  painter.restore();
}

}  // namespace velmar::presentation
