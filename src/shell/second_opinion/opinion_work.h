#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <optional>

#include "calculation/open/open_calculation.h"
#include "validation/known_accuracy.h"
#include "validation/second_opinion.h"

namespace velmar::shell {

/// The second opinion on the result that stands, formed beside the window: a window that waits for a layered
/// model is felt.
class OpinionWork : public QObject {
  Q_OBJECT
 public:
  /// @param open and `accuracy` outlive this
  OpinionWork(const calculation::OpenCalculation& open, const validation::KnownAccuracy& accuracy,
              QObject* parent = nullptr);
  /// Waits for what is under way.
  ~OpinionWork() override;

  /// Looks at set-up and result as they are now: forms an opinion where one is due.
  void Follow();

  /// On the result that stands; nothing without a result and while it is being formed.
  const std::optional<validation::SecondOpinion>& Opinion() const { return opinion_; }
  /// Whether an opinion on the result that stands is being formed.
  bool IsBusy() const { return busy_; }

 signals:
  /// There is another opinion, or none any more.
  void Changed();

 private:
  /// What an opinion is formed on.
  struct Question {
    elements::Setup setup{};
    elements::ResultSet result{};

    bool operator==(const Question&) const = default;
  };

  bool IsAboutNow(const std::optional<Question>& question) const;
  void Start();
  void Take();

  const calculation::OpenCalculation& open_;
  const validation::KnownAccuracy& accuracy_;
  QFutureWatcher<validation::SecondOpinion> watcher_;
  std::optional<Question> question_{};  ///< what is being, or was last, thought about
  std::optional<validation::SecondOpinion> opinion_{};
  bool busy_ = false;
};

}  // namespace velmar::shell
