#pragma once

#include <QWidget>

#include "presentation/texts/words.h"

class QLabel;

namespace velmar::shell {

class ContinuousCalculation;

/// What the continuous calculation says beside the rating: the difference to the result before the last
/// change ("▲ +2", "prima 44 (−1; −4)"), or why there is no result. Takes no room when it has nothing to say.
class DifferenceLine : public QWidget {
  Q_OBJECT
 public:
  explicit DifferenceLine(const presentation::Words& words, QWidget* parent = nullptr);

  /// @param rating the rating on the screen, dB; nothing without a result
  /// @param impact it is one of impact sound
  void Show(const ContinuousCalculation& continuous, const std::optional<double>& rating, bool impact);

  /// Whether it says why there is no result.
  bool SaysWhy() const;

 private:
  presentation::Words words_;
  QLabel* difference_ = nullptr;
  QLabel* former_ = nullptr;
  QLabel* reason_ = nullptr;
};

}  // namespace velmar::shell
