#pragma once

#include <QString>
#include <filesystem>

#include "shell/project/project_services.h"
#include "shell/project/window_memory.h"

namespace velmar::shell {

/// Where the file dialogs begin: in the folder of the open project, in the one that was used last, in the
/// user's documents; never where the program's own files stand.
class ProposedFiles {
 public:
  /// @param places and `memory` outlive this object
  ProposedFiles(const ProjectPlaces& places, WindowMemory& memory) : places_(places), memory_(memory) {}

  /// Whether `file` stands among the shipped examples.
  bool IsOriginal(const std::filesystem::path& file) const;

  /// The folder or file at which the choice of a project to open begins, while `project` is open.
  QString ToOpen(const std::filesystem::path& project) const;
  /// The file that `project` is proposed to be saved to; a folder for one without a name.
  QString ToSave(const std::filesystem::path& project) const;
  /// The file that a document of `project` is proposed to be written to: with its name and `ending` (".docx")
  /// where its last document went, or beside it; a folder for a project without a name.
  QString ForDocument(const std::filesystem::path& project, const QString& ending) const;
  /// A document of `project` was written to `file`.
  void Written(const std::filesystem::path& project, const std::filesystem::path& file);

 private:
  std::filesystem::path OwnFolder(const std::filesystem::path& project) const;
  std::filesystem::path LastProjectFolder() const;
  std::filesystem::path Documents() const;

  const ProjectPlaces& places_;
  WindowMemory& memory_;
};

}  // namespace velmar::shell
