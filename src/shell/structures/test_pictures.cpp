#include <QPainter>

#include "foundation/message_rows.h"
#include "presentation/drawing/colours.h"
#include "shell/structures/test_details.h"

namespace velmar::structures {
MeasuredCurveView::MeasuredCurveView(const shell::WindowTools& tools, QWidget* parent)
    : QWidget(parent),
      empty_(presentation::EmptyChart(tools.words)),
      chart_(empty_),
      no_bands_(tools.Text(kNoBandsRow)) {
  setObjectName(QStringLiteral("Picture1"));
  setAccessibleName(tools.Text(kMeasuredCurveRow));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void MeasuredCurveView::Show(const std::optional<MeasuredTest>& test, const BranchSymbols& symbols) {
  chart_ = empty_;
  bare_ = false;
  if (test) {
    for (std::size_t i = 0; i < chart_.values.size(); ++i) {
      const std::optional<double>& value = test->part.bands_db[i];
      chart_.values[i] = value == calculation::kNotMeasuredDb ? 0.0 : value.value_or(0.0);
    }
    chart_.octaves.emplace();
    for (std::size_t i = 0; i < chart_.octaves->size(); ++i)
      chart_.octaves->at(i) = test->octave_steps_db.at(i).value_or(0.0);
    if (*chart_.octaves == acoustics::Spectrum{}) chart_.octaves.reset();
    bare_ = chart_.values == acoustics::Spectrum{} && !chart_.octaves;
    chart_.fits_values = true;
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
  if (!bare_) return;
  painter.setPen(presentation::kQuietInkColour);
  painter.drawText(presentation::PlotArea(rect(), chart_, font()), Qt::AlignCenter | Qt::TextWordWrap,
                   no_bands_);
}

}  // namespace velmar::structures
