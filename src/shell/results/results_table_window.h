#pragma once

#include <QDialog>

#include "presentation/texts/results_table.h"
#include "presentation/texts/words.h"

class QGroupBox;
class QLabel;
class QPushButton;
class QTableWidget;

namespace velmar::shell {

/// The results table (`Form4`): 21 bands and the single numbers, which can be copied.
class ResultsTableWindow : public QDialog {
  Q_OBJECT
 public:
  static constexpr int kPreferredWidth = 280;

  ResultsTableWindow(const presentation::ResultsTable& table, const presentation::Words& words,
                     QWidget* parent = nullptr);

  /// Shows `table` from now on; it can be copied anew.
  void Show(const presentation::ResultsTable& table);

 private:
  void FillTable();

  presentation::ResultsTable table_;
  QTableWidget* view_ = nullptr;
  QPushButton* copy_ = nullptr;
};

}  // namespace velmar::shell
