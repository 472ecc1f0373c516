#pragma once

#include <QFont>
#include <QPointF>
#include <QRectF>
#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "elements/materials.h"

class QPainter;

namespace velmar::presentation {

/// The absorption coefficient of a material over its bands, 100 Hz to 6300 Hz.
struct AbsorptionChart {
  std::array<std::optional<double>, elements::kAbsorptionBandCount> values{};  ///< 0 to 1.5
  std::string frequency_axis{};  ///< UTF-8; an empty text is not drawn
};

/// The upper end of the chart's scale: 1, or in steps of 0.25 what the values need, up to 1.5.
double AbsorptionTop(const AbsorptionChart& chart);

/// Where `value` at `band` stands in a chart drawn into `area` with `font`.
QPointF AbsorptionPoint(const QRectF& area, const AbsorptionChart& chart, const QFont& font, std::size_t band,
                        double value);

/// Draws `chart` into `area`, on white. Only neighbouring bands are joined: a band without a value leaves a
/// gap, as the calculations that need all bands do not bridge it either.
void DrawAbsorptionChart(QPainter& painter, const QRectF& area, const AbsorptionChart& chart);

}  // namespace velmar::presentation
