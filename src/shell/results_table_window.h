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
 public:
  ResultsTableWindow(const presentation::ResultsTable& table, const presentation::Words& words,
                     QWidget* parent = nullptr);

 private:
  void FillTable(QTableWidget& view) const;

  presentation::ResultsTable table_;
};

}  // namespace velmar::shell
