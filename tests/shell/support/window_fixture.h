#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>

#include "shell/main_window/main_window.h"
#include "shell/results/chart_overlay.h"
#include "shell/results/results_panel.h"

class QMimeData;

namespace velmar::shell {

/// What a comparison would lay over the chart.
class LaidOver : public ChartOverlay {
 public:
  void LayOver(presentation::CurveChart& chart) override {
    if (lay_over) lay_over(chart);
  }

  std::function<void(presentation::CurveChart&)> lay_over{};
};

/// A main window with the shipped materials and words, and boxes that answer without opening.
struct WindowFixture {
  WindowFixture();

  /// Makes the window anew, as the services are now.
  void MakeWindow();
  /// The results as they are shown.
  const ResultsPanel& Results() const { return *window->findChild<ResultsPanel*>(); }
  /// Chooses the calculation of the menu entry `control` for the set-up as it stands: that of the first
  /// materials where none was chosen before.
  void Choose(const char* control);
  void Choose(elements::Calculation calculation);
  /// The menu entry of `calculation`.
  QString ControlOf(elements::Calculation calculation) const;
  /// Presses F5 at the window.
  void Run();
  /// The control called `name`. Aborts the test program when there is none.
  template <typename Widget>
  Widget* Find(const QString& name) const {
    auto* widget = window->findChild<Widget*>(name);
    if (widget == nullptr) qFatal("no control called %s", qPrintable(name));
    return widget;
  }
  /// Drops what is dragged on `target`, as a hand does.
  static void Drop(QWidget* target, const QMimeData& dragged);
  /// Replaces the text of the field `name` as a hand does: select all, then keys.
  void Type(const QString& name, const QString& keys) const;

  QStringList asked;                        ///< questions of relations
  QStringList told;                         ///< boxes
  QStringList written;                      ///< files of which a box said that they were written
  int save_questions = 0;                   ///< the question about unsaved changes
  bool go_on = true;                        ///< answer to `asked`
  std::optional<bool> save{};               ///< answer to the question about unsaved changes; nothing: cancel
  QString file;                             ///< answer of the file dialogs
  std::vector<FileQuestion> to_save;        ///< what the dialogs of files to save began with
  std::vector<std::vector<LostWork>> lost;  ///< what was offered of earlier runs
  std::vector<LostWorkAnswer> lost_answers{};  ///< answers to that, one after the other; then "later"

  calculation::OpenCalculation open;
  LaidOver overlay;
  WindowServices services{open};
  std::unique_ptr<MainWindow> window;
};

}  // namespace velmar::shell
