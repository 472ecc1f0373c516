#pragma once

#include <QPointer>
#include <functional>

#include "shell/pages/window_services.h"
#include "shell/results/results_table_window.h"

namespace velmar::shell {

/// The results table of the one open calculation: shown on demand, it follows further runs and closes with
/// the result.
class OpenTable {
 public:
  /// @param on_change told when the table opens or is gone
  OpenTable(const WindowServices& services, std::function<void()> on_change)
      : services_(services), on_change_(std::move(on_change)) {}
  ~OpenTable();
  OpenTable(const OpenTable&) = delete;
  OpenTable& operator=(const OpenTable&) = delete;

  /// Shows the table of the result that stands; nothing without a result, or when it is open already.
  void Show(QWidget* parent);
  /// Shows what the result has become.
  void Follow();
  void Close();
  bool IsOpen() const { return window_ && window_->isVisible(); }

 private:
  presentation::ResultsTable TableNow() const;

  const WindowServices& services_;
  std::function<void()> on_change_;
  QPointer<ResultsTableWindow> window_;
};

}  // namespace velmar::shell
