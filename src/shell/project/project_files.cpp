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

ProjectFiles::ProjectFiles(const WindowServices& services, WindowMemory& memory, Recovery& recovery)
    : services_(services), memory_(memory), recovery_(recovery) {}

QString ProjectFiles::Caption() const {
  const QString name = project_.empty() ? Text(services_.words, kNewProjectRow)
                                        : QString::fromStdString(project_.stem().string());
  return QString(kProductName) + " - " + Text(services_.words, kApplicationRow) + " - " + name;
}

bool ProjectFiles::LeaveUnsaved() {
  if (services_.open.IsSaved()) return true;
  const Message question = {
      {kUnsavedProjectRow}, {kSaveBeforeGoingOnRow}, {kYesAndNoMeaningRow}, {kCancelMeaningRow}};
  const std::optional<bool> save = services_.boxes.ask_or_cancel(Text(services_.words, question));
  if (!save) return false;
  return !*save || Save();
}

bool ProjectFiles::Open() {
  if (!MayGoOn()) return false;
  const QString file =
      services_.boxes.choose_file_to_open({.title = Text(services_.words, kChooseProjectRow),
                                           .filter = kFilter,
                                           .start = QString::fromStdString(project_.string())});
  return !file.isEmpty() && Load(file.toStdString());
}

bool ProjectFiles::Open(const std::filesystem::path& project) { return MayGoOn() && Load(project); }

// The open set-up stays until another one is read, so that a cancelled dialog or a damaged file loses
// nothing; its result goes.
bool ProjectFiles::MayGoOn() {
  const bool saved = services_.open.IsSaved();
  if (!LeaveUnsaved()) return false;
  if (saved && services_.open.Result()) services_.open.Replace(services_.open.Setup());
  return true;
}

bool ProjectFiles::Load(const std::filesystem::path& file) {
  try {
    services_.open.Replace(services_.read_project(file));
  } catch (const std::exception& failure) {
    TellFailure(failure);
    return false;
  }
  memory_.Remember(file);
  Rename(file);
  if (!services_.open.Setup().calculation)
    services_.boxes.tell(Tone::kInformation, Text(services_.words, kProjectOfUnknownCalculationRow));
  return true;
}

bool ProjectFiles::Save() {
  const QString chosen =
      services_.boxes.choose_file_to_save({.title = Text(services_.words, kSaveProjectRow),
                                           .filter = kFilter,
                                           .start = QString::fromStdString(project_.string())});
  if (chosen.isEmpty()) return false;
  std::filesystem::path file = chosen.toStdString();
  if (file.extension() != kEnding) file += kEnding;
  try {
    services_.write_project(file, services_.open.Setup());
  } catch (const std::exception& failure) {
    TellFailure(failure);
    return false;
  }
  services_.open.MarkSaved();
  recovery_.Discard();
  memory_.Remember(file);
  Rename(file);
  return true;
}

bool ProjectFiles::OfferRecovery() {
  const auto copy = recovery_.LeftBehind();
  if (!copy) return false;
  const Message question = {{kRecoveryFirstRow}, {kRecoverySecondRow}};
  const bool wanted = services_.boxes.ask(Text(services_.words, question));
  if (wanted) {
    try {
      services_.open.Replace(services_.read_project(*copy));
    } catch (const std::exception& failure) {
      TellFailure(failure);
      return false;
    }
    // It was never saved under a name: it is unsaved work again.
    services_.open.DropResult();
    recovery_.WriteNow();
  }
  Recovery::Drop(*copy);
  return wanted;
}

void ProjectFiles::Rename(std::filesystem::path project) {
  project_ = std::move(project);
  if (on_change_) on_change_();
}

void ProjectFiles::TellFailure(const std::exception& failure) const {
  const auto* known = dynamic_cast<const Failure*>(&failure);
  const QString words = known != nullptr ? Text(services_.words, known->UserMessage())
                                         : Text(services_.words, kUnexpectedRow) + '\n' + failure.what();
  services_.boxes.tell(Tone::kCritical, words);
}

}  // namespace velmar::shell
