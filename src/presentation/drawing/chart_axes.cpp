#include "presentation/drawing/chart_axes.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "acoustics/bands.h"
#include "presentation/drawing/colours.h"
#include "presentation/drawing/text.h"

namespace velmar::presentation {
namespace {

constexpr double kGridWidth = 1.0;
constexpr double kTickLength = 4.0;

// Every third band carries its frequency: 63, 125, ... 4000 Hz.
constexpr std::size_t kFirstLabelledBand = 1;
constexpr std::size_t kLabelStep = 3;
constexpr double kRoomOfFrequency = 3.5;  ///< of a label, in heights of the text

constexpr std::array kLevelSteps = {0.5, 1.0, 2.0, 5.0, 10.0, 20.0, 50.0};
constexpr double kMostLevels = 8.0;

/// Decibels at logical height `y`.
double LevelAt(double y, const ChartRange& range) {
  return range.maximum + (y - 80.0) * (range.maximum - range.minimum) / 70.0;
}

void DrawGrid(QPainter& painter, const ChartLayout& layout) {
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(QPen(kVerticalGridColour, kGridWidth));
  for (int band = 1; band <= 19; ++band) {
    painter.drawLine(layout.At(band, 0.0), layout.At(band, kChartHeight));
  }
  painter.setPen(QPen(kHorizontalGridColour, kGridWidth));
  for (int y = 10; y <= 80; y += 10) painter.drawLine(layout.At(0.0, y), layout.At(kChartWidth, y));
}

bool IsSeen(const ChartLayout& layout, const QPointF& point) {
  return layout.plot.adjusted(-0.5, -0.5, 0.5, 0.5).contains(point);
}

void DrawLevel(QPainter& painter, const ChartLayout& layout, double y, const QString& text) {
  const double em = layout.text_px;
  const QPointF foot(layout.plot.left(), layout.At(0.0, y).y());
  const QRectF box(foot.x() - kTickLength - 3.0 - 4.0 * em, foot.y() - em, 4.0 * em, 2.0 * em);
  DrawTextIn(painter, box, Qt::AlignRight | Qt::AlignVCenter, text);
}

void DrawFrequency(QPainter& painter, const ChartLayout& layout, std::size_t band) {
  const double em = layout.text_px;
  const double x = layout.At(static_cast<double>(band), 0.0).x();
  const QRectF box(x - 3.0 * em, layout.frequency_labels.top() + kTickLength, 6.0 * em, 1.3 * em);
  DrawTextIn(painter, box, Qt::AlignHCenter | Qt::AlignTop, QString::number(acoustics::BandCentre(band)));
}

/// The labels of a chart of which a part is seen.
void DrawPartLabels(QPainter& painter, const ChartLayout& layout, const ChartRange& range) {
  const ChartWindow& window = layout.window;
  const double lowest = LevelAt(window.bottom, range);
  const double highest = LevelAt(window.top, range);
  const auto* step =
      std::ranges::find_if(kLevelSteps, [&](double one) { return (highest - lowest) / one <= kMostLevels; });
  const double between = step == kLevelSteps.end() ? kLevelSteps.back() : *step;
  for (double level = std::ceil(lowest / between) * between; level <= highest; level += between)
    DrawLevel(painter, layout, LogicalY(level, range), QString::number(level).replace('.', ','));
  const double room = kRoomOfFrequency * layout.text_px;
  const double width = layout.plot.width() / (window.right - window.left);
  const auto every = static_cast<std::size_t>(std::clamp(std::ceil(room / width), 1.0, 3.0));
  for (std::size_t band = kFirstLabelledBand % every; band < acoustics::kBandCount; band += every) {
    const auto place = static_cast<double>(band);
    if (place >= window.left && place <= window.right) DrawFrequency(painter, layout, band);
  }
}

void DrawWholeLabels(QPainter& painter, const ChartLayout& layout, const ChartRange& range) {
  const auto labels = AxisLabels(range);
  for (std::size_t i = 0; i < labels.size(); ++i)
    DrawLevel(painter, layout, 10.0 + 10.0 * static_cast<double>(i), QString::number(labels[i]));
  for (std::size_t band = kFirstLabelledBand; band < acoustics::kBandCount; band += kLabelStep)
    DrawFrequency(painter, layout, band);
}

}  // namespace

void DrawAxes(QPainter& painter, const ChartLayout& layout, const CurveChart& chart) {
  painter.save();
  if (!layout.window.IsWhole()) painter.setClipRect(layout.plot, Qt::IntersectClip);
  DrawGrid(painter, layout);
  if (chart.highlighted_band) {
    painter.setPen(QPen(kAxisColour, kGridWidth, Qt::DashLine));
    const auto band = static_cast<double>(*chart.highlighted_band);
    painter.drawLine(layout.At(band, 0.0), layout.At(band, kChartHeight));
  }
  painter.restore();
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(QPen(kAxisColour, kGridWidth));
  painter.setBrush(Qt::NoBrush);
  painter.drawLine(layout.plot.bottomLeft(), layout.plot.bottomRight());
  painter.drawLine(layout.plot.bottomLeft(), layout.plot.topLeft());
  for (int band = 1; band <= 19; ++band) {
    const QPointF foot(layout.At(band, 0.0).x(), layout.plot.bottom());
    if (IsSeen(layout, foot)) painter.drawLine(foot, foot + QPointF(0.0, kTickLength));
  }
  for (int y = 10; y <= 80; y += 10) {
    const QPointF foot(layout.plot.left(), layout.At(0.0, y).y());
    if (IsSeen(layout, foot)) painter.drawLine(foot - QPointF(kTickLength, 0.0), foot);
  }
}

void DrawAxisLabels(QPainter& painter, const ChartLayout& layout, const CurveChart& chart,
                    const ChartRange& range) {
  painter.setPen(kInkColour);
  const double em = layout.text_px;
  if (layout.window.IsWhole()) {
    DrawWholeLabels(painter, layout, range);
  } else {
    DrawPartLabels(painter, layout, range);
  }
  DrawTextIn(painter, layout.frequency_axis, Qt::AlignCenter, FromWords(chart.words.frequency_axis));

  painter.save();
  painter.translate(layout.level_axis.center());
  painter.rotate(-90.0);
  const QSizeF turned = layout.level_axis.size().transposed();
  DrawTextIn(painter, QRectF(QPointF(-turned.width() / 2.0, -turned.height() / 2.0), turned), Qt::AlignCenter,
             FromWords(chart.words.level_axis));
  painter.restore();

  painter.setFont(PixelFont(layout.font, em, true));
  DrawTextIn(painter, layout.title, Qt::AlignCenter, FromWords(chart.words.title));
  painter.setFont(layout.font);
}

}  // namespace velmar::presentation
