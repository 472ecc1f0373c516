#pragma once

#include <QPointer>
#include <QWidget>
#include <set>
#include <string>

#include "calculation/open/open_calculation.h"
#include "shell/results/chart_overlay.h"
#include "shell/second_opinion/opinion_work.h"
#include "shell/second_opinion/route_window.h"
#include "shell/windows/boxes.h"

class QGridLayout;
class QLabel;
class QToolButton;

namespace velmar::shell {

/// What other models say of the result that stands (`FrameSecondoParere`): one line, which opens a table of
/// the models with their tested errors. A tick lays the curve of a model over the chart. Without a result, or
/// where no other model applies, it takes no room.
class SecondOpinionPanel : public QWidget {
  Q_OBJECT
 public:
  /// @param open and what follows outlive the panel
  SecondOpinionPanel(const calculation::OpenCalculation& open, const Speech& speech,
                     const validation::KnownAccuracy& accuracy, QWidget* parent = nullptr);

  /// Looks at set-up and result as they are now.
  void Follow() { work_.Follow(); }

  /// The ticked curves.
  ChartOverlay& Curves() { return curves_; }

 private:
  /// The curves of the models whose tick is set.
  class TickedCurves : public ChartOverlay {
   public:
    explicit TickedCurves(const SecondOpinionPanel& panel) : panel_(panel) {}
    void LayOver(presentation::CurveChart& chart) override;

   private:
    const SecondOpinionPanel& panel_;
  };

  void MakeLine();
  void Show();
  void ShowSummary(const validation::SecondOpinion& opinion);
  void ShowTable(const validation::SecondOpinion& opinion);
  void AddHeads(bool impact);
  void AddModel(const validation::ModelOpinion& model, int row, bool impact);
  QString IntervalText(const validation::ModelOpinion& model) const;
  QWidget* TickOf(const validation::ModelOpinion& model, const QColor& colour);
  void Open();
  void FollowRoute();
  void ShowRoute(const std::string& model);
  const validation::ModelOpinion* Find(const std::string& model) const;

  const calculation::OpenCalculation& open_;
  const Speech& speech_;
  OpinionWork work_;
  TickedCurves curves_{*this};
  std::set<std::string> ticked_{};
  QLabel* note_ = nullptr;
  QToolButton* open_button_ = nullptr;
  QLabel* summary_ = nullptr;
  QWidget* table_ = nullptr;
  QPointer<RouteWindow> route_;
};

}  // namespace velmar::shell
