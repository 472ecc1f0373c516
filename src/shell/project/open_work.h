#pragma once

#include <QObject>

#include "calculation/open/open_calculation.h"

namespace velmar::shell {

/// Tells the windows what becomes of the one open calculation.
class OpenWork : public QObject {
  Q_OBJECT
 public:
  /// @param open outlives this object, and tells nobody else
  explicit OpenWork(calculation::OpenCalculation& open, QObject* parent = nullptr);
  ~OpenWork() override;

 signals:
  /// Something changed that others are about to be told: who completes it does so now, and they are told
  /// once.
  void AboutToTell();
  /// Set-up, result or saved state are others now.
  void Changed();
  /// The result that stood is gone; told before Changed().
  void ResultGone();

 private:
  void Tell();

  calculation::OpenCalculation& open_;
  bool had_result_ = false;
  bool completing_ = false;
};

}  // namespace velmar::shell
