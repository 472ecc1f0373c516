#pragma once

#include <QObject>
#include <filesystem>
#include <optional>
#include <vector>

#include "calculation/open/open_calculation.h"
#include "shell/project/project_services.h"
#include "shell/project/proposed_files.h"
#include "shell/project/recovery.h"
#include "shell/project/templates.h"
#include "shell/project/window_memory.h"
#include "shell/windows/boxes.h"

namespace velmar::shell {

/// Beginning, opening and saving of the project, with their questions; the project's name in the window's
/// caption.
class ProjectFiles : public QObject {
  Q_OBJECT
 public:
  /// All that is passed in outlives this object.
  ProjectFiles(calculation::OpenCalculation& open, const Speech& speech, const ProjectServices& services,
               const ProjectPlaces& places, WindowMemory& memory, Recovery& recovery,
               QObject* parent = nullptr);

  /// Asks about unsaved changes and puts the open work aside: nothing is chosen any more.
  /// @return whether the user went on
  bool New();
  /// Asks about unsaved changes, asks for a file, opens it. What was open stays, result included, until
  /// another file was read. @return whether a project was opened
  bool Open();
  /// The same for a file that is named already: recent, dropped, or from the command line.
  bool Open(const std::filesystem::path& project);
  /// Asks about unsaved changes and begins a new work with what the template `pattern` holds: without a name,
  /// and with the project information of a new work. @return whether it began
  bool Begin(const std::filesystem::path& pattern);
  /// Asks for a name and keeps the open work as a template.
  void KeepAsTemplate();
  const Templates& OwnTemplates() const { return templates_; }
  /// Saves to the open project's file; asks for one where there is none, or where it is an example. A file
  /// that another program has written meanwhile is replaced only when the user says so.
  /// @return whether it was saved
  bool Save();
  /// Asks for a file and saves there. @return whether it was saved
  bool SaveAs();
  /// Asks about unsaved changes. @return whether the window may go on
  bool LeaveUnsaved();
  /// The user does without the unsaved changes.
  void GiveUp() { open_.MarkSaved(); }

  /// Offers unsaved work that earlier runs left behind. @return whether some was opened: unsaved still, and
  /// under its project's name.
  bool OfferRecovery();

  /// Another calculation was chosen in the place of `before`. Work on another kind of element is a work of
  /// its own: it has no file yet, so that saving does not replace the one that it began with.
  void FollowChoice(std::optional<elements::Calculation> before);

  /// "VELMARpro - Calcolo previsionale elementi - Nuovo".
  QString Caption() const;
  /// The open project's file; empty for none.
  const std::filesystem::path& File() const { return project_.path; }

  /// The file that a document of the open project is offered, with `ending` (".docx").
  QString ProposeDocument(const QString& ending) const;
  /// A document of the open project was written to `file`.
  void DocumentWritten(const std::filesystem::path& file);

 signals:
  /// Another project was read.
  void Opened();
  /// Unsaved work of an earlier run was opened.
  void Recovered();
  /// The open work was put aside for a new one.
  void Emptied();
  /// The project has another name, and another file behind it.
  void Renamed();
  /// The project was written to its file.
  void Saved(const std::filesystem::path& file);
  /// The open work was kept as the template `file`.
  void TemplateKept(const std::filesystem::path& file);

 private:
  bool Load(const std::filesystem::path& file);
  bool Write(const std::filesystem::path& file);
  bool Recover(LostWork work);
  bool AskToDelete(const LostWork& work) const;
  void Rename(ProjectFile project);
  void TellFailure(const std::exception& failure) const;

  calculation::OpenCalculation& open_;
  const Speech& speech_;
  const ProjectServices& services_;
  WindowMemory& memory_;
  Recovery& recovery_;
  ProposedFiles proposed_;
  Templates templates_;
  ProjectFile project_;
};

/// The project files in `folder` by name; none when it cannot be read.
std::vector<std::filesystem::path> ProjectsIn(const std::filesystem::path& folder);

}  // namespace velmar::shell
