#pragma once

#include <QObject>
#include <string>
#include <vector>

#include "elements/multilayer.h"
#include "foundation/message.h"
#include "shell/page_parts/page_context.h"

class QAction;
class QBoxLayout;
class QGridLayout;
class QLabel;
class QToolButton;
class QWidget;

namespace velmar::shell {

class ChoiceBox;
class LayerRow;
class NumberField;

/// One row of the free list of layers, in two lines of a grid: number, kind, material or nothing, thickness,
/// sheets, button of the material list, menu of the row; below it what connects the leaves of the cavity
/// that begins here, or the shape of a profiled sheet.
class StratumRow : public QObject {
  Q_OBJECT

 public:
  static constexpr int kKindColumn = 1;
  /// Columns that the kind takes before those of a LayerRow.
  static constexpr int kShift = 1;

  StratumRow(int index, PageContext& context, QGridLayout& grid, QWidget* page);

  /// Shows the row, or hides it.
  void Show(const elements::Setup& setup, bool visible);

  /// Whether `widget` is one of the row's.
  bool Holds(const QWidget* widget) const;
  /// What the row shows goes `places` down, or up where that is negative, as far as there are rows.
  void Move(int places);
  /// The row's kind is what the keyboard is at from now on.
  void TakeFocus();

 signals:
  /// The row was moved to place `place`; it is shown by the row there.
  void Moved(int place);

 private:
  void MakeKind(QWidget* page);
  void MakeMenu(QWidget* page);
  void MakeDetail(QGridLayout& grid, QWidget* page);
  void MakeConnection(QBoxLayout& line, QWidget* page);
  /// A field of numbers and what it is about.
  struct TextPlan {
    const char* name = "";
    elements::Field field{};
    MessageRow caption{};
    std::string elements::Stratum::*text = nullptr;
  };
  NumberField* MakeText(const TextPlan& plan, QWidget* page);
  void ShowDetail(const elements::Setup& setup);
  template <typename Change>
  void Rearrange(Change&& change);

  int index_;
  PageContext& context_;
  QLabel* number_ = nullptr;
  ChoiceBox* kind_ = nullptr;
  LayerRow* solid_ = nullptr;
  LayerRow* fibre_ = nullptr;
  NumberField* thickness_ = nullptr;
  QToolButton* more_ = nullptr;
  QAction* up_ = nullptr;
  QAction* down_ = nullptr;
  std::vector<QAction*> adding_;
  QAction* remove_ = nullptr;
  QWidget* detail_ = nullptr;
  std::vector<QWidget*> of_cavity_;     ///< shown where a cavity begins
  std::vector<QWidget*> of_connected_;  ///< shown where something connects its leaves
  std::vector<QWidget*> of_profile_;    ///< shown for a profiled sheet
  ChoiceBox* connection_ = nullptr;
  QLabel* connection_caption_ = nullptr;
  NumberField* connection_number_ = nullptr;
  NumberField* profile_height_ = nullptr;
  NumberField* profile_pitch_ = nullptr;
};

}  // namespace velmar::shell
