#pragma once

#include <QObject>
#include <QStringList>
#include <functional>
#include <utility>

#include "elements/material_record.h"
#include "shell/commands/desk.h"
#include "shell/documents/document_services.h"

namespace velmar::shell {

/// Export to Word and Excel: asks for a file, fills the template, writes the document whole or not at all,
/// and says where it is. A missing template, a damaged one and a file that cannot be written are told.
class ReportCommands : public QObject {
  Q_OBJECT
 public:
  /// @param documents outlives the commands
  /// @param materials of projects that are opened for a report of several
  explicit ReportCommands(const DocumentServices& documents, elements::MaterialLookup materials = {})
      : documents_(documents), materials_(std::move(materials)) {}

  /// How project files are asked for; as it stands by the screen's dialog.
  void ChooseProjectsBy(std::function<QStringList(const FileQuestion&)> choose) {
    choose_projects_ = std::move(choose);
  }

 public slots:
  void ExportWord(const velmar::shell::Desk& desk);
  void ExportExcel(const velmar::shell::Desk& desk);
  /// Opens the window that makes one document of several projects.
  void ReportProjects(const velmar::shell::Desk& desk);
  /// Asks for a document template and says what is wrong with it.
  void CheckTemplate(const velmar::shell::Desk& desk);

 private:
  const DocumentServices& documents_;
  elements::MaterialLookup materials_;
  std::function<QStringList(const FileQuestion&)> choose_projects_{};
};

}  // namespace velmar::shell
