#pragma once

#include <QObject>
#include <filesystem>
#include <vector>

#include "calculation/open_calculation.h"
#include "shell/fields/boxes.h"
#include "shell/project/project_services.h"
#include "shell/project/recovery.h"
#include "shell/project/window_memory.h"

namespace velmar::shell {

/// Opening and saving of the project, with its questions; the project's name in the window's caption.
class ProjectFiles : public QObject {
  Q_OBJECT
 public:
  ProjectFiles(calculation::OpenCalculation& open, const Speech& speech, const ProjectServices& services,
               WindowMemory& memory, Recovery& recovery, QObject* parent = nullptr);

  /// Asks about unsaved changes, asks for a file, opens it. @return whether a project was opened
  bool Open();
  /// The same for a file that is named already: recent, dropped, or from the command line.
  bool Open(const std::filesystem::path& project);
  /// Asks for a file and saves. @return whether it was saved
  bool Save();
  /// Asks about unsaved changes. @return whether the window may go on
  bool LeaveUnsaved();

  /// Offers unsaved work that an earlier run left behind. @return whether it was taken
  bool OfferRecovery();

  /// "VELMARpro - Calcolo previsionale elementi - Nuovo".
  QString Caption() const;
  /// The open project's file; empty for none.
  const std::filesystem::path& File() const { return project_; }

 signals:
  /// Another project was read.
  void Opened();
  /// The project has another name, and another file behind it.
  void Renamed();

 private:
  bool Load(const std::filesystem::path& file);
  void Rename(std::filesystem::path project);
  void TellFailure(const std::exception& failure) const;
  bool MayGoOn();

  calculation::OpenCalculation& open_;
  const Speech& speech_;
  const ProjectServices& services_;
  WindowMemory& memory_;
  Recovery& recovery_;
  std::filesystem::path project_;
};

/// The file that a document of `project` is offered: beside it, of its name, with `ending` (".docx"). Empty
/// without a project.
QString BesideProject(const std::filesystem::path& project, const QString& ending);

/// The project files in `folder` by name; none when it cannot be read.
std::vector<std::filesystem::path> ProjectsIn(const std::filesystem::path& folder);

}  // namespace velmar::shell
