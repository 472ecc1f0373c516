#pragma once

#include <QWidget>
#include <array>
#include <optional>
#include <vector>

#include "presentation/drawing/compared_looks.h"
#include "presentation/drawing/curve_chart.h"
#include "presentation/texts/compared_curves.h"
#include "shell/windows/window_tools.h"

class QComboBox;
class QTableWidget;
class QToolButton;

namespace velmar::structures {

class DifferenceView;

/// The curves of a comparison: a table with their ratings, in which those that were added can be removed and
/// moved, and the differences from one of them. Delete removes, Ctrl+Shift with Up and Down moves.
class ComparedCurvesList : public QWidget {
  Q_OBJECT

 public:
  /// The curves that come and go by other hands, in the order of display.
  enum class Side { kCalculated, kLaboratory, kInSitu };

  ComparedCurvesList(const shell::WindowTools& tools, bool is_impact, QWidget* parent = nullptr);

  /// `curve` is that of `side` from now on.
  void Put(Side side, const std::optional<presentation::ComparedCurve>& curve);
  /// Adds a curve behind the others; nothing while IsFull(). @param is_variant it follows FollowVariants()
  void Add(const presentation::ComparedCurve& curve, bool is_variant);
  bool IsFull() const;
  /// Curves of variants become what `variants` hold under their name; those that are not there leave.
  void FollowVariants(const std::vector<presentation::ComparedCurve>& variants);

  /// No curve is left, nor differences.
  void Clear();

  /// All curves, as a report tells them.
  const presentation::Comparison& Comparison() const { return comparison_; }
  /// Those that were added, as the chart draws them.
  std::vector<presentation::FurtherCurve> Added() const;

 signals:
  /// A curve came, went, moved, or another one is that of the differences.
  void Changed();
  /// The curve of `side` is not wanted any more.
  void SideRemoved(velmar::structures::ComparedCurvesList::Side side);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// What tells one curve from the next, however they move.
  using Key = int;
  static constexpr int kSides = 3;

  struct AddedCurve {
    presentation::ComparedCurve curve{};
    Key key = 0;
    std::size_t look = 0;  ///< of presentation::kComparedLooks
    bool is_variant = false;
  };
  struct Row {
    Key key = 0;
    const presentation::ComparedCurve* curve = nullptr;
    presentation::ComparedLook look{};
  };

  QWidget* MakeButtons();
  std::vector<Row> Rows() const;
  std::optional<Key> SelectedKey() const;
  std::optional<std::size_t> SelectedAdded() const;
  void Remove();
  void Move(int by);
  void Show(std::optional<Key> selected);
  void ShowRow(int index, const Row& row, const std::optional<double>& difference);
  void ShowDifferences(const std::vector<Row>& rows);
  void ShowChoice(const std::vector<Row>& rows);
  void EnableButtons();

  shell::WindowTools tools_;
  bool is_impact_;
  std::array<std::optional<presentation::ComparedCurve>, kSides> sides_{};
  std::vector<AddedCurve> added_{};
  Key next_key_ = kSides;
  std::optional<Key> against_{};
  presentation::Comparison comparison_{};
  QTableWidget* table_ = nullptr;
  QToolButton* up_ = nullptr;
  QToolButton* down_ = nullptr;
  QToolButton* remove_ = nullptr;
  QComboBox* from_ = nullptr;
  DifferenceView* differences_ = nullptr;
};

}  // namespace velmar::structures
