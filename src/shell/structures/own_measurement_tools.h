#pragma once

#include <QWidget>
#include <optional>
#include <string>

#include "shell/structures/measurement_editor.h"
#include "shell/structures/structure_sources.h"
#include "shell/windows/window_tools.h"

class QPushButton;

namespace velmar::structures {

/// The buttons by which the library grows: a new measurement, and for the user's own ones change, delete with
/// a step back, import and export. What the shipped series hold is never changed.
class OwnMeasurementTools : public QWidget {
  Q_OBJECT
 public:
  OwnMeasurementTools(const shell::WindowTools& tools, OwnMeasurementSource own, QWidget* parent = nullptr);

  /// What the window shows now; the buttons that do not fit it are off.
  void ShowFile(const std::optional<LibraryFile>& file);
  void ShowTest(const std::optional<std::string>& name);
  /// Enters a new measurement of `branch`.
  void EnterNew(Branch branch);

 signals:
  /// The own measurements of a branch have changed; `name` is the one to show, empty for none.
  void Changed(velmar::structures::Branch branch, const QString& name);

 private:
  struct Deleted {
    Branch branch{};
    storage::MeasuredTest test{};
  };

  void ShowButtons();
  void Edit();
  void Open(MeasurementToEdit edited);
  void Delete();
  void UndoDelete();
  void Import();
  void Export();
  Branch Current() const;

  shell::WindowTools tools_;
  OwnMeasurementSource own_;
  std::optional<LibraryFile> file_;
  std::optional<std::string> name_;
  std::optional<Deleted> deleted_;
  QPushButton* edit_ = nullptr;
  QPushButton* delete_ = nullptr;
  QPushButton* undo_ = nullptr;
  QPushButton* import_ = nullptr;
  QPushButton* export_ = nullptr;
};

}  // namespace velmar::structures
