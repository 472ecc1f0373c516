#pragma once

#include <QObject>

#include "shell/commands/desk.h"
#include "shell/documents/document_services.h"

namespace velmar::shell {

/// Export to Word and Excel: asks for a file, fills the template, writes the document whole or not at all,
/// and says where it is. A missing template, a damaged one and a file that cannot be written are told.
class ReportCommands : public QObject {
  Q_OBJECT
 public:
  /// @param documents outlives the commands
  explicit ReportCommands(const DocumentServices& documents) : documents_(documents) {}

 public slots:
  void ExportWord(const velmar::shell::Desk& desk);
  void ExportExcel(const velmar::shell::Desk& desk);

 private:
  const DocumentServices& documents_;
};

}  // namespace velmar::shell
