#pragma once

#include <QObject>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "calculation/open/open_calculation.h"
#include "shell/commands/comparison_command.h"
#include "shell/commands/own_tools.h"
#include "shell/page_parts/page_services.h"
#include "shell/structures/measured_library_window.h"
#include "shell/structures/store_sources.h"
#include "shell/windows/boxes.h"
#include "shell/windows/window_tools.h"

namespace velmar::shell {

/// The windows on stored and measured structures behind the commands and buttons of the main window: results
/// database, measured library, comparison.
class StructureCommands : public QObject {
  Q_OBJECT
 public:
  /// @param open and `speech` outlive this object
  /// @param settings file of the main window's sizes, beside which those of these windows are kept; empty:
  ///                 nothing is remembered
  StructureCommands(calculation::OpenCalculation& open, const Speech& speech,
                    const std::filesystem::path& settings, const structures::LibraryPlaces& places,
                    std::shared_ptr<storage::AccessSession> session);

  /// The pages read stored results, and pick them and measurements, here from now on.
  void Serve(PageServices& pages);
  /// The curves of the comparison.
  ComparisonCommand& Comparison() { return comparison_; }

 public slots:
  /// `Salva`: stores the result that stands under a name that is asked for.
  void Store(QWidget* parent);
  void ShowSavedResults(QWidget* parent);
  void ShowAirborneData(QWidget* parent);
  void ShowImpactData(QWidget* parent);
  /// The comparison stands beside the curve of the main window.
  void Compare(QWidget* parent);

 private:
  std::vector<std::string> Names() const;
  std::optional<calculation::FacadePart> Find(const std::string& name) const;
  void PickSavedResult(QWidget* parent, const ElementPick& pick);
  void PickMeasured(QWidget* parent, const ElementPick& pick);
  void ShowLibrary(QWidget* parent, structures::MeasuredTarget target);
  void Take(const ElementPick& pick, const calculation::FacadePart& part);

  calculation::OpenCalculation& open_;
  const Speech& speech_;
  std::filesystem::path results_file_;
  OwnTools own_;
  structures::ResultSource results_;
  structures::LibrarySource library_;
  ComparisonCommand comparison_;
};

}  // namespace velmar::shell
