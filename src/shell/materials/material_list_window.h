#pragma once

#include <QDialog>
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "shell/materials/material_grid.h"
#include "shell/materials/material_model.h"
#include "shell/materials/material_source.h"
#include "shell/materials/material_use_window.h"
#include "shell/windows/window_tools.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace velmar::shell {

class SearchField;

/// A layer row that a material is picked for (`DestinazioneMateriale`, `IndiceStrato`).
struct MaterialPick {
  elements::MaterialFamily family{};
  std::string shown{};                                ///< what the row has now; the list begins at it
  std::function<void(const std::string& name)> take;  ///< puts the material into the row
};

/// The list of materials (`Form2`): a grid of one family, searched, sorted and edited. Opened for a layer row
/// it hands a material over; opened from the menu it lets the family be chosen.
class MaterialListWindow : public QDialog {
  Q_OBJECT

 public:
  /// The numbers of the layers of the open calculation that hold a material.
  using UsedIn = std::function<std::vector<int>(elements::MaterialFamily, const std::string& name)>;

  /// @param used empty: nothing is told of where a material is used
  MaterialListWindow(WindowTools tools, MaterialSource source, std::optional<MaterialPick> pick,
                     UsedIn used = {}, QWidget* parent = nullptr);
  ~MaterialListWindow() override;

  /// How the projects that use a material are looked for.
  using ProjectSearch =
      std::function<MaterialUseWindow::Search(elements::MaterialFamily, const std::string& name)>;
  /// Offers to look for them by `search`; without this it is not offered.
  void LookForProjectsBy(ProjectSearch search);

  /// Reads the table anew; the selected material stays selected when it is still there. A table that cannot
  /// be read is told of, and what was shown stays. @return whether it was read
  bool Refresh();

 signals:
  /// A material was stored.
  void Changed(const velmar::shell::MaterialChange& change);
  void Removed(velmar::elements::MaterialFamily family, const std::string& name);
  /// The table was read again when the user asked for it: others may have changed it.
  void Refreshed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QWidget* MakeHead();
  void MakeGrid();
  QWidget* MakeSelected();
  QWidget* MakeButtons();
  void ChooseFamily(elements::MaterialFamily family);
  void RememberColumns() const;
  void RefreshAsAsked();
  void SearchFor(const QString& text);
  void ShowSelected();
  void Take();
  void Edit(const std::string& name);
  void Delete();
  void UndoDelete();
  void ShowUse(const std::string& name);
  void ShowProjects();

  /// The row that was deleted last.
  struct Deleted {
    elements::MaterialFamily family{};
    std::string name{};
    MaterialCells cells{};
  };

  WindowTools tools_;
  MaterialSource source_;
  std::optional<MaterialPick> pick_;
  UsedIn used_;
  ProjectSearch projects_{};
  elements::MaterialFamily family_{};
  MaterialModel model_;
  MaterialSearch shown_;
  std::array<QRadioButton*, 3> families_{};
  SearchField* search_ = nullptr;
  MaterialGrid* grid_ = nullptr;
  QCheckBox* all_columns_ = nullptr;
  QLineEdit* name_ = nullptr;
  QPushButton* new_ = nullptr;
  QPushButton* edit_ = nullptr;
  QPushButton* delete_ = nullptr;
  QPushButton* where_ = nullptr;
  QPushButton* undo_ = nullptr;
  QLabel* use_ = nullptr;  ///< where the open calculation uses the selected material
  std::optional<Deleted> deleted_;
  QPushButton* take_ = nullptr;
};

}  // namespace velmar::shell
