#pragma once

#include <QWidget>

#include "presentation/drawing/difference_chart.h"

namespace velmar::structures {

/// Shows a chart of differences.
class DifferenceView : public QWidget {
 public:
  explicit DifferenceView(const QString& name, QWidget* parent = nullptr);

  void Show(const presentation::DifferenceChart& chart);
  const presentation::DifferenceChart& Chart() const { return chart_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  presentation::DifferenceChart chart_{};
};

}  // namespace velmar::structures
