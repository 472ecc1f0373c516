#include "shell/project/project_files.h"

#include <algorithm>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "shell/fields/phrases.h"

namespace velmar::shell {
namespace {

constexpr const char* kEnding = ".drav";
constexpr const char* kFilter = "VELMARpro files (*.drav)";

}  // namespace

std::vector<std::filesystem::path> ProjectsIn(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> projects;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
    if (entry.path().extension() == kEnding) projects.push_back(entry.path());
  }
  std::sort(projects.begin(), projects.end());
  return projects;
}

QString BesideProject(const std::filesystem::path& project, const QString& ending) {
  if (project.empty()) return {};
  return QString::fromStdString((project.parent_path() / project.stem()).string()) + ending;
}

ProjectFiles::ProjectFiles(calculation::OpenCalculation& open, const Speech& speech,
                           const ProjectServices& services, WindowMemory& memory, Recovery& recovery,
                           QObject* parent)
    : QObject(parent),
      open_(open),
      speech_(speech),
      services_(services),
      memory_(memory),
      recovery_(recovery) {}

QString ProjectFiles::Caption() const {
  const QString name = project_.empty() ? Text(speech_.words, kNewProjectRow)
                                        : QString::fromStdString(project_.stem().string());
  return QString(kProductName) + " - " + Text(speech_.words, kApplicationRow) + " - " + name;
}

bool ProjectFiles::LeaveUnsaved() {
  if (open_.IsSaved()) return true;
  const Message question = {
      {kUnsavedProjectRow}, {kSaveBeforeGoingOnRow}, {kYesAndNoMeaningRow}, {kCancelMeaningRow}};
  const std::optional<bool> save = speech_.boxes.ask_or_cancel(Text(speech_.words, question));
  if (!save) return false;
  return !*save || Save();
}

bool ProjectFiles::Open() {
  if (!MayGoOn()) return false;
  const QString file =
      speech_.boxes.choose_file_to_open({.title = Text(speech_.words, kChooseProjectRow),
                                         .filter = kFilter,
                                         .start = QString::fromStdString(project_.string())});
  return !file.isEmpty() && Load(file.toStdString());
}

bool ProjectFiles::Open(const std::filesystem::path& project) { return MayGoOn() && Load(project); }

// The open set-up stays until another one is read, so that a cancelled dialog or a damaged file loses
// nothing; its result goes.
bool ProjectFiles::MayGoOn() {
  const bool saved = open_.IsSaved();
  if (!LeaveUnsaved()) return false;
  if (saved && open_.Result()) open_.Replace(open_.Setup());
  return true;
}

bool ProjectFiles::Load(const std::filesystem::path& file) {
  try {
    open_.Replace(services_.read_project(file));
  } catch (const std::exception& failure) {
    TellFailure(failure);
    return false;
  }
  memory_.Remember(file);
  Rename(file);
  emit Opened();
  if (!open_.Setup().calculation)
    speech_.boxes.tell(Tone::kInformation, Text(speech_.words, kProjectOfUnknownCalculationRow));
  return true;
}

bool ProjectFiles::Save() {
  const QString chosen =
      speech_.boxes.choose_file_to_save({.title = Text(speech_.words, kSaveProjectRow),
                                         .filter = kFilter,
                                         .start = QString::fromStdString(project_.string())});
  if (chosen.isEmpty()) return false;
  std::filesystem::path file = chosen.toStdString();
  if (file.extension() != kEnding) file += kEnding;
  try {
    services_.write_project(file, open_.Setup());
  } catch (const std::exception& failure) {
    TellFailure(failure);
    return false;
  }
  open_.MarkSaved();
  recovery_.Discard();
  memory_.Remember(file);
  Rename(file);
  return true;
}

bool ProjectFiles::OfferRecovery() {
  const auto copy = recovery_.LeftBehind();
  if (!copy) return false;
  const Message question = {{kRecoveryFirstRow}, {kRecoverySecondRow}};
  const bool wanted = speech_.boxes.ask(Text(speech_.words, question));
  if (wanted) {
    try {
      open_.Replace(services_.read_project(*copy));
    } catch (const std::exception& failure) {
      TellFailure(failure);
      return false;
    }
    // It was never saved under a name: it is unsaved work again.
    open_.DropResult();
    recovery_.WriteNow();
  }
  Recovery::Drop(*copy);
  return wanted;
}

void ProjectFiles::Rename(std::filesystem::path project) {
  project_ = std::move(project);
  emit Renamed();
}

void ProjectFiles::TellFailure(const std::exception& failure) const {
  const auto* known = dynamic_cast<const Failure*>(&failure);
  const QString words = known != nullptr ? Text(speech_.words, known->UserMessage())
                                         : Text(speech_.words, kUnexpectedRow) + '\n' + failure.what();
  speech_.boxes.tell(Tone::kCritical, words);
}

}  // namespace velmar::shell
