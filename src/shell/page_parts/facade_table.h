#pragma once

#include <QWidget>
#include <vector>

#include "calculation/open/history.h"
#include "calculation/runs/facade_overview.h"
#include "shell/page_parts/page_context.h"

class QGridLayout;
class QLabel;
class QPushButton;
class QToolButton;

namespace velmar::shell {

class ChoiceBox;
class ElementName;
class NumberField;
class ShareBar;

/// All parts of a facade at a glance, a row each: name, area, rating and terms, class of air tightness, and
/// the share of the energy that it lets through. What a page of a component takes is edited here in place;
/// the ratings of the form by bands follow from the band values and are only shown.
class FacadeTable : public QWidget {
  Q_OBJECT

 public:
  explicit FacadeTable(PageContext& context, QWidget* parent = nullptr);

  void Show(const elements::Setup& setup);

 signals:
  /// The page of component `number` (from 1) is wanted.
  void ComponentWanted(int number);

 private:
  struct Row {
    QLabel* number = nullptr;
    ElementName* name = nullptr;
    NumberField* area = nullptr;        ///< of a component
    QLabel* opaque_area = nullptr;      ///< what the components leave
    std::vector<NumberField*> boxes{};  ///< rating, C, Ctr of the form by ratings
    std::vector<QLabel*> ratings{};     ///< the same of the form by bands
    ChoiceBox* tightness = nullptr;
    ShareBar* share = nullptr;
    QToolButton* tools = nullptr;
  };

  void AddHeads();
  void AddButtons();
  Row AddRow(int element);
  void AddNumbers(Row& row, int element);
  void AddTightness(Row& row, int element);
  QToolButton* MakeTools(int element);
  void OpenMenu(int number);
  void PickMeasured(int number);
  void ShowRow(Row& row, int element, const elements::Setup& setup, const calculation::FacadeRow& numbers);
  bool eventFilter(QObject* watched, QEvent* event) override;
  /// Does `change` as the step `kind` on component `number`.
  template <typename Change>
  void Do(calculation::StepKind kind, int number, Change&& change);

  PageContext& context_;
  QGridLayout* grid_ = nullptr;
  std::vector<Row> rows_{};
  QPushButton* add_ = nullptr;
  QPushButton* add_measured_ = nullptr;
};

}  // namespace velmar::shell
