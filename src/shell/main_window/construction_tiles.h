#pragma once

#include <QListWidget>
#include <filesystem>
#include <map>
#include <vector>

#include "presentation/drawing/section.h"
#include "presentation/texts/words.h"
#include "shell/main_window/project_glances.h"

class QComboBox;

namespace velmar::shell {

/// Constructions to begin with, as tiles: section, name, rating and mass. First the user's own templates,
/// then the usual constructions and the other examples. A list of kinds, to stand beside the heading, shows
/// those of one kind alone.
///
/// On a template: F2 renames, Delete removes, and both stand in its menu.
class ConstructionTiles : public QListWidget {
  Q_OBJECT
 public:
  explicit ConstructionTiles(presentation::Words words, QWidget* parent = nullptr);

  QComboBox* Kinds() const { return kinds_; }
  /// In the order of the tiles.
  std::vector<std::filesystem::path> Projects() const;

  void Show(const std::vector<std::filesystem::path>& templates,
            const std::vector<std::filesystem::path>& examples);
  /// Puts on its tile what `project` is.
  void Tell(const std::filesystem::path& project, const ProjectGlance& glance);

 signals:
  void ExampleChosen(const std::filesystem::path& project);
  void TemplateChosen(const std::filesystem::path& project);
  void RenamingWanted(const std::filesystem::path& project);
  void RemovalWanted(const std::filesystem::path& project);

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void FillKinds();
  void Add(const std::filesystem::path& project, bool own);
  bool IsShown(const QListWidgetItem& item) const;
  void ShowKind();
  void Choose(const QListWidgetItem* item);

  presentation::Words words_;
  QComboBox* kinds_ = nullptr;
  std::map<QString, presentation::Section> sections_{};  ///< by path, for the one who draws
};

}  // namespace velmar::shell
