#include "shell/results/chart_zoom.h"

#include <algorithm>

namespace velmar::shell {
namespace {

constexpr double kFewestBands = 4.0;

struct Span {
  double from = 0.0;
  double to = 0.0;
};

/// `span` moved into `whole`, and cut to it where it is wider.
Span Within(Span span, const Span& whole) {
  if (span.to - span.from >= whole.to - whole.from) return whole;
  const double shift = std::max(whole.from - span.from, 0.0) - std::max(span.to - whole.to, 0.0);
  return {span.from + shift, span.to + shift};
}

Span Scaled(const Span& span, double factor, double place) {
  const double fixed = span.from + (span.to - span.from) * place;
  return {fixed - (fixed - span.from) * factor, fixed + (span.to - fixed) * factor};
}

presentation::ChartWindow Window(const Span& across, const Span& up) {
  const presentation::ChartWindow whole;
  const Span bands = Within(across, {whole.left, whole.right});
  const Span heights = Within(up, {whole.bottom, whole.top});
  return {.left = bands.from, .right = bands.to, .bottom = heights.from, .top = heights.to};
}

}  // namespace

presentation::ChartWindow Zoomed(const presentation::ChartWindow& window, double factor,
                                 const QPointF& place) {
  const double bands = window.right - window.left;
  const double most = std::max(factor, kFewestBands / bands);
  return Window(Scaled({window.left, window.right}, most, place.x()),
                Scaled({window.bottom, window.top}, most, place.y()));
}

presentation::ChartWindow Moved(const presentation::ChartWindow& window, const QPointF& by) {
  const double across = (window.right - window.left) * by.x();
  const double up = (window.top - window.bottom) * by.y();
  return Window({window.left + across, window.right + across}, {window.bottom + up, window.top + up});
}

}  // namespace velmar::shell
