#pragma once

#include <QObject>
#include <QPointer>

#include "calculation/open/open_calculation.h"
#include "presentation/texts/words.h"
#include "shell/results/results_table_window.h"

namespace velmar::shell {

/// The results table of the one open calculation: shown on demand, it follows further runs and closes with
/// the result.
class OpenTable : public QObject {
  Q_OBJECT
 public:
  /// @param open and `words` outlive this object
  OpenTable(const calculation::OpenCalculation& open, const presentation::Words& words,
            QObject* parent = nullptr)
      : QObject(parent), open_(open), words_(words) {}
  ~OpenTable() override;

  /// Shows the table of the result that stands; nothing without a result, or when it is open already.
  void Show(QWidget* parent);
  /// Shows what the result has become.
  void Follow();
  void Close();
  bool IsOpen() const { return window_ && !window_->isHidden(); }

 signals:
  /// The table was opened, or is gone.
  void Toggled();

 private:
  presentation::ResultsTable TableNow() const;

  const calculation::OpenCalculation& open_;
  const presentation::Words& words_;
  QPointer<ResultsTableWindow> window_;
};

}  // namespace velmar::shell
