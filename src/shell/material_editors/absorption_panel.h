#pragma once

#include <QGroupBox>
#include <QWidget>
#include <array>
#include <string>
#include <vector>

#include "elements/materials.h"
#include "presentation/drawing/absorption_chart.h"
#include "shell/windows/window_tools.h"

class QLineEdit;
class QPushButton;

namespace velmar::material_editors {

class AbsorptionBox;

/// The curve of an absorption coefficient.
class AbsorptionView : public QWidget {
 public:
  explicit AbsorptionView(const shell::WindowTools& tools, QWidget* parent = nullptr);

  void Show(const presentation::AbsorptionChart& chart);
  const presentation::AbsorptionChart& Shown() const { return chart_; }
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  presentation::AbsorptionChart chart_;
};

/// The 19 absorption coefficients of a material (`TextAlfa`), what clears them (`CommandAlfa`), and their
/// curve, which follows every key. A disabled panel shows no curve: its values do not count.
class AbsorptionPanel : public QGroupBox {
 public:
  using Texts = std::array<std::string, elements::kAbsorptionBandCount>;

  explicit AbsorptionPanel(const shell::WindowTools& tools, QWidget* parent = nullptr);

  void Show(const Texts& coefficients);
  Texts Entered() const;
  QLineEdit* Box(std::size_t band) const;

  /// "Calcola"; what it does is the editor's.
  QPushButton* ComputeButton() const { return compute_; }
  /// Shows `coefficients` in `bands` and marks them as computed, until they are typed over.
  void ShowComputed(const Texts& coefficients, const std::vector<std::size_t>& bands);
  /// The bands that are marked as computed.
  std::vector<std::size_t> ComputedBands() const;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QWidget* MakeBoxes();
  void DrawCurve();
  void AskAndClear();
  void Mark(std::size_t band, bool computed);
  void TakeColumn(const QString& cells, std::size_t band);

  shell::WindowTools tools_;
  std::array<AbsorptionBox*, elements::kAbsorptionBandCount> boxes_{};
  std::array<bool, elements::kAbsorptionBandCount> computed_{};
  QPushButton* compute_ = nullptr;  ///< `CommandCalcola`
  AbsorptionView* curve_ = nullptr;
};

}  // namespace velmar::material_editors
