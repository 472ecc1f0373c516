#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "calculation/open/open_calculation.h"
#include "calculation/runs/totals.h"
#include "elements/variants.h"
#include "presentation/drawing/curve_chart.h"
#include "shell/results/chart_overlay.h"
#include "shell/windows/boxes.h"

class QHBoxLayout;
class QMenu;
class QScrollArea;
class QToolButton;

namespace velmar::shell {

/// The variants of the project side by side, each a button that goes back to it: name, rating and terms,
/// thickness and mass, and the difference of its rating to the open one. Takes no room while there is neither
/// a variant nor a result to fix.
///
/// On a button: F2 renames, Delete removes, Ctrl+Shift with Left and Right moves.
class VariantStrip : public QWidget {
  Q_OBJECT

 public:
  /// @param open and `speech` outlive the strip
  VariantStrip(calculation::OpenCalculation& open, const Speech& speech, QWidget* parent = nullptr);

  /// Shows the variants as they are now.
  void Show();

  /// The curves of the variants that are not open, of the same quantity as the open result; none while they
  /// are not wanted.
  ChartOverlay& Curves() { return overlay_; }

 public slots:
  /// The open set-up and its result are kept as a variant; a box says where that cannot be.
  void Fix();

 signals:
  /// Whatever was typed and is not yet taken is to be taken now.
  void SettleAsked();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  class Overlay : public ChartOverlay {
   public:
    explicit Overlay(const VariantStrip& strip) : strip_(strip) {}
    void LayOver(presentation::CurveChart& chart) override { strip_.LayOver(chart); }

   private:
    const VariantStrip& strip_;
  };

  /// A variant as it is shown.
  struct Entry {
    elements::Variant variant{};
    std::optional<elements::Setup> setup{};  ///< nothing: this program cannot read it
    calculation::Totals totals{};
    std::optional<elements::VariantResult> result{};
    bool is_open = false;
    QToolButton* button = nullptr;
  };

  void Read();
  void FitHeight();
  void LayOver(presentation::CurveChart& chart) const;
  QToolButton* MakeButton(int index);
  void ShowButton(const Entry& entry);
  QString ButtonText(const Entry& entry) const;
  QString Difference(const elements::VariantResult& result) const;
  bool TakeKey(int index, int key, Qt::KeyboardModifiers modifiers);

  void GoTo(int index);
  void FixAgain(int index);
  void Rename(int index);
  void Move(int from, int to);
  void Remove(int index);
  void OpenMenu(int index);
  void Focus(int index);

  calculation::OpenCalculation& open_;
  const Speech& speech_;
  Overlay overlay_{*this};
  std::vector<elements::Variant> read_{};
  std::vector<Entry> entries_{};
  QScrollArea* area_ = nullptr;
  QHBoxLayout* line_ = nullptr;
  QToolButton* curves_ = nullptr;
  QToolButton* fix_ = nullptr;
};

}  // namespace velmar::shell
