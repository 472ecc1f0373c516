#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "acoustics/airborne_rating.h"
#include "acoustics/bands.h"
#include "acoustics/unfavourable_deviations.h"
#include "elements/result_set.h"
#include "elements/setup.h"
#include "presentation/drawing/curve_look.h"
#include "presentation/texts/compared_curves.h"
#include "presentation/texts/words.h"

class QPainter;

namespace velmar::presentation {

/// What the chart says in words, UTF-8. An empty text is not drawn.
struct ChartWords {
  std::string title{};
  std::string frequency_axis{};
  std::string level_axis{};
  std::string calculated{};
  std::string reference{};
  std::string laboratory{};
  std::string in_situ{};
  std::string base{};
  std::string former{};
  std::string required{};         ///< at the curve of the required rating
  std::string deviation{};        ///< of one band
  std::string deviations{};       ///< with their sum
  std::string deviations_note{};  ///< below the sum, as why it is larger than allowed
  std::string note{};             ///< in the middle of the plot, as where there is no curve
};

/// The part of a chart that is seen, in its logical units: one a band across, 0 to 90 upwards.
struct ChartWindow {
  double left = 0.0;
  double right = 20.0;
  double bottom = 0.0;
  double top = 90.0;

  bool IsWhole() const { return *this == ChartWindow{}; }
  bool operator==(const ChartWindow&) const = default;
};

/// What a screen shows besides the curves, and paper does not.
struct ChartMarks {
  std::optional<acoustics::Spectrum> former{};  ///< the curve before the last change
  std::optional<double> required{};  ///< the reference curve is drawn again where it has this rating, dB
  bool deviations = false;           ///< the unfavourable deviations are shaded and their sum is told
  bool pale_outside = false;         ///< what no rating reads, outside 100 Hz to 3150 Hz, is paler
  ChartWindow window{};
};

/// A curve beside the calculated one, drawn with dashes.
struct FurtherCurve {
  std::string name{};  ///< in the legend
  acoustics::Spectrum values{};
  QColor colour{};
  std::optional<CurveLook> look{};  ///< nothing: the look of its place among the others
  bool in_octaves = false;          ///< its values are octaves, drawn as steps over the thirds
};

/// A result as curves over the bands. A value of exactly 0 is a band without a value. Levels in dB.
struct CurveChart {
  acoustics::Spectrum values{};
  std::array<double, acoustics::kRatedBandCount> reference = acoustics::kAirborneReference;
  std::optional<double> shift;                    ///< of the reference curve; without one it is not drawn
  std::optional<acoustics::Spectrum> base;        ///< the element under a lining
  std::optional<acoustics::Spectrum> laboratory;  ///< compared with, measured in the laboratory
  std::optional<acoustics::Spectrum> in_situ;     ///< compared with, measured in a building
  std::vector<FurtherCurve> further{};            ///< what other models say, variants, compared structures
  bool laboratory_in_octaves = false;             ///< its values are octaves, drawn as steps over the thirds
  bool in_situ_in_octaves = false;
  std::optional<acoustics::Spectrum> octaves;  ///< octaves of the same structure, as steps behind `values`
  std::string laboratory_name{};               ///< of the structure compared with; empty: none is chosen
  std::string in_situ_name{};
  Comparison comparison{};   ///< what is told of the curves that are compared, the calculated one among them
  bool autoscale = false;    ///< false: 10 to 80 dB
  bool fits_values = false;  ///< the scale is that of the values alone, from the lowest to the highest
  std::size_t first_band = 0;
  std::size_t last_band = acoustics::kBandCount - 1;
  std::optional<std::size_t> highlighted_band;  ///< marked by a line, as under the mouse
  acoustics::Unfavourable unfavourable = acoustics::Unfavourable::kBelow;
  ChartMarks marks{};
  ChartWords words{};
};

/// The look of the curve `index` of `curves`.
CurveLook LookOf(const std::vector<FurtherCurve>& curves, std::size_t index);

/// The chart of a result; nothing when it has no curve (generic linings, a facade by single numbers).
std::optional<CurveChart> CurveChartOf(const elements::Setup& setup, const elements::ResultSet& result,
                                       const Words& words);

/// Prepares `chart` for paper, where nobody can change the scale: fits the scale to the curves when one would
/// leave it.
void ShowWhole(CurveChart& chart);

/// How far the curve of `chart` lies on the unfavourable side of its reference curve, dB; 0 without one. A
/// band without a value counts as the rating counted it, as 0 dB.
acoustics::Deviations DeviationsOf(const CurveChart& chart);

/// A chart without curves for the time before a run: grid and axes alone.
CurveChart EmptyChart(const Words& words);

/// The same for the calculation of `setup`, with the axes and the room for the legend that a result of it
/// has, so that nothing moves when the curve comes. @param note what stands in the middle, as why there is no
/// curve
CurveChart EmptyChartOf(const elements::Setup& setup, const std::string& note, const Words& words);

/// Draws `chart` into `area`, on white, in units of which one is a screen pixel; screen, printer, preview and
/// report picture all call this. The painter's font gives the family and the size of the labels.
void DrawCurveChart(QPainter& painter, const QRectF& area, const CurveChart& chart);

/// Where the curves of `chart` stand when it is drawn into `area` with `font`.
QRectF PlotArea(const QRectF& area, const CurveChart& chart, const QFont& font);

/// The band nearest to `position` in a chart drawn into `area` with `font`; nothing beside the curves.
std::optional<std::size_t> BandAt(const QPointF& position, const QRectF& area, const CurveChart& chart,
                                  const QFont& font);

}  // namespace velmar::presentation
