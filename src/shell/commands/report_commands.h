#pragma once

#include <QObject>
#include <filesystem>
#include <utility>

#include "presentation/texts/calculation_data.h"
#include "shell/commands/desk.h"

namespace velmar::shell {

/// Export to Word and Excel: asks for a file, fills the template, writes the document whole or not at all,
/// and says where it is. A missing template, a damaged one and a file that cannot be written are told.
class ReportCommands : public QObject {
  Q_OBJECT
 public:
  /// @param templates folder of the templates
  /// @param sources tells where the values of materials come from
  explicit ReportCommands(std::filesystem::path templates, presentation::MaterialSources sources = {})
      : templates_(std::move(templates)), sources_(std::move(sources)) {}

 public slots:
  void ExportWord(const velmar::shell::Desk& desk);
  void ExportExcel(const velmar::shell::Desk& desk);

 private:
  std::filesystem::path templates_;
  presentation::MaterialSources sources_;
};

}  // namespace velmar::shell
