#include <QPainter>

#include "presentation/drawing/text.h"
#include "shell/structures/test_details.h"

namespace velmar::structures {
namespace {

constexpr MessageRow kCurveNameRow{1717};

}  // namespace

MeasuredCurveView::MeasuredCurveView(const windows::WindowTools& tools, QWidget* parent)
    : QWidget(parent), empty_(presentation::EmptyChart(tools.words)), chart_(empty_) {
  setObjectName(QStringLiteral("Picture1"));
  setAccessibleName(tools.Text(kCurveNameRow));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void MeasuredCurveView::Show(const std::optional<MeasuredTest>& test, const BranchSymbols& symbols) {
  chart_ = empty_;
  if (test) {
    for (std::size_t i = 0; i < chart_.values.size(); ++i) {
      const std::optional<double>& value = test->part.bands_db[i];
      chart_.values[i] = value == calculation::kNotMeasuredDb ? 0.0 : value.value_or(0.0);
    }
    chart_.autoscale = true;
    chart_.words.level_axis = symbols.bands;
  }
  update();
}

QSize MeasuredCurveView::sizeHint() const { return {420, 260}; }
QSize MeasuredCurveView::minimumSizeHint() const { return {300, 170}; }

void MeasuredCurveView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(font());
  presentation::DrawCurveChart(painter, rect(), chart_);
}

}  // namespace velmar::structures
