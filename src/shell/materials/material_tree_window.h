#pragma once

#include <QDialog>
#include <functional>
#include <optional>
#include <vector>

#include "shell/fields/dragged_material.h"
#include "shell/materials/material_source.h"
#include "shell/materials/material_tree_model.h"
#include "shell/windows/window_tools.h"

class QFormLayout;
class QLabel;
class QSplitter;
class QTreeView;

namespace velmar::shell {

class SearchField;

/// "Lista materiali" (`FormSceltaMateriali`): all materials as a tree beside the properties of the selected
/// one. It stays open beside the main window; its materials are dragged onto layer rows, or put there with
/// Enter or a double click.
class MaterialTreeWindow : public QDialog {
 public:
  /// Puts a material where the user stands. @return false when there is no place for it
  using Put = std::function<bool(const DraggedMaterial&)>;

  MaterialTreeWindow(WindowTools tools, MaterialSource source, Put put, QWidget* parent = nullptr);
  ~MaterialTreeWindow() override;

  /// Reads the tables anew; the selected material stays selected when it is still there. A table that cannot
  /// be read is told of, and what was shown of it stays.
  void Refresh();
  /// Reads one family anew, as after a change of it.
  void Refresh(elements::MaterialFamily family);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void StandBeside(const QWidget* main);
  QWidget* MakeTree();
  void Fill(elements::MaterialFamily family, const std::vector<storage::ListedMaterial>& names);
  QWidget* MakeProperties();
  std::optional<DraggedMaterial> Selected() const;
  void Select(const DraggedMaterial& material);
  void ShowSelected();
  void PutSelected();
  void SearchFor(const QString& text);

  WindowTools tools_;
  MaterialSource source_;
  Put put_;
  MaterialTreeModel model_;
  MaterialTreeSearch shown_;
  QSplitter* sides_ = nullptr;
  SearchField* search_ = nullptr;
  QTreeView* tree_ = nullptr;
  QFormLayout* form_ = nullptr;
  std::vector<QLabel*> values_;
  QLabel* hint_ = nullptr;
};

}  // namespace velmar::shell
