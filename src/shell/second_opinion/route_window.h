#pragma once

#include <QDialog>

#include "elements/setup.h"
#include "presentation/texts/words.h"
#include "validation/second_opinion.h"

class QTextBrowser;

namespace velmar::shell {

/// How the value of one model comes about (`FinestraPerche`): model, source, assumptions, inputs used,
/// limits, tested error. Stands beside the window and blocks nothing.
class RouteWindow : public QDialog {
 public:
  explicit RouteWindow(const presentation::Words& words, QWidget* parent = nullptr);

  /// Shows the route of `opinion` for `setup`.
  void Show(const validation::ModelOpinion& opinion, const elements::Setup& setup);
  /// The model that is shown.
  const std::string& Model() const { return model_; }

 private:
  void Add(QString& page, MessageRow heading, const Message& lines) const;

  const presentation::Words& words_;
  QTextBrowser* text_ = nullptr;
  std::string model_{};
};

}  // namespace velmar::shell
