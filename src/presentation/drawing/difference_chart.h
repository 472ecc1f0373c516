#pragma once

#include <QFont>
#include <QPointF>
#include <QRectF>
#include <cstddef>
#include <string>
#include <vector>

#include "presentation/drawing/compared_looks.h"
#include "presentation/texts/compared_curves.h"

class QPainter;

namespace velmar::presentation {

/// Curves as their differences from one of them, which is the line at 0.
struct DifferenceChart {
  struct Curve {
    BandDifferences differences_db{};
    ComparedLook look{};
    bool in_octaves = false;  ///< one of the two is known by octaves: steps, as their curves are
  };
  std::vector<Curve> curves{};
  ComparedLook zero{};       ///< of the curve that the others are compared with
  std::string level_axis{};  ///< UTF-8; an empty text is not drawn
};

/// The scale of `chart` goes from minus this to this, dB: 5, or what the differences need in tens.
double DifferenceTop(const DifferenceChart& chart);

/// The point of `band` (50 Hz is 0) and `difference_db` in a chart drawn into `area` with `font`.
QPointF DifferencePoint(const QRectF& area, const DifferenceChart& chart, const QFont& font, std::size_t band,
                        double difference_db);

/// Draws `chart` into `area`, on white.
void DrawDifferenceChart(QPainter& painter, const QRectF& area, const DifferenceChart& chart);

}  // namespace velmar::presentation
