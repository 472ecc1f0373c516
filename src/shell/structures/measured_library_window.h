#pragma once

#include <QDialog>
#include <functional>

#include "shell/fields/window_tools.h"
#include "shell/structures/structure_sources.h"
#include "shell/structures/tree_nodes.h"

class QPushButton;

namespace velmar::structures {

class TestChooser;
class TestDetails;

/// What the window is opened for.
struct MeasuredTarget {
  LibraryPurpose purpose = LibraryPurpose::kOpaquePart;
  int component = 0;  ///< 1 to 9, when it is for a component
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
  void ShowExtraData();

  shell::WindowTools tools_;
  MeasuredTarget target_;
  TestChooser* chooser_ = nullptr;
  TestDetails* details_ = nullptr;
  QPushButton* extra_ = nullptr;
};

}  // namespace velmar::structures
