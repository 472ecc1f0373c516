#pragma once

#include <QDialog>
#include <functional>
#include <optional>

#include "shell/structures/measurement_editor.h"
#include "shell/structures/structure_sources.h"
#include "shell/structures/tree_nodes.h"
#include "shell/windows/window_tools.h"

class QPushButton;

namespace velmar::structures {

class OwnMeasurementTools;
class TestChooser;
class TestDetails;

/// What a target reads of a test.
enum class TargetNeeds {
  kNothing,  ///< takes what there is
  kThirds,   ///< a facade by bands
  kRating,   ///< the simplified facade
};

/// What the window is opened for.
struct MeasuredTarget {
  LibraryPurpose purpose = LibraryPurpose::kOpaquePart;
  int component = 0;  ///< 1 to 9, when it is for a component
  TargetNeeds needs = TargetNeeds::kNothing;
  /// Takes the chosen test; empty when the window is only looked at.
  std::function<void(const calculation::FacadePart&)> take{};
};

/// "Database sperimentale" (`Form9`): browses the measured structures and hands one over.
class MeasuredLibraryWindow : public QDialog {
 public:
  MeasuredLibraryWindow(shell::WindowTools tools, LibrarySource source, MeasuredTarget target,
                        QWidget* parent = nullptr);
  ~MeasuredLibraryWindow() override;

 private:
  QWidget* MakeButtons();
  QString Caption() const;
  void Take();
  /// The chosen test as the target takes it, after a question where it lacks what that needs; nothing when
  /// the user declines.
  std::optional<calculation::FacadePart> PartForTarget() const;
  void ShowExtraData();

  shell::WindowTools tools_;
  MeasuredTarget target_;
  TestChooser* chooser_ = nullptr;
  TestDetails* details_ = nullptr;
  OwnMeasurementTools* own_ = nullptr;  ///< absent without own measurements
  QPushButton* extra_ = nullptr;
};

}  // namespace velmar::structures
