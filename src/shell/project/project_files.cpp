#include "shell/project/project_files.h"

#include <algorithm>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr const char* kEnding = ".drav";
constexpr const char* kFilter = "VELMARpro files (*.drav *.DRAV)";

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

ProjectFiles::ProjectFiles(calculation::OpenCalculation& open, const Speech& speech,
                           const ProjectServices& services, const ProjectPlaces& places, WindowMemory& memory,
                           Recovery& recovery, QObject* parent)
    : QObject(parent),
      open_(open),
      speech_(speech),
      services_(services),
      memory_(memory),
      recovery_(recovery),
      proposed_(places, memory),
      templates_(places.templates, speech, services) {}

QString ProjectFiles::Caption() const {
  const QString name = project_.path.empty() ? Text(speech_.words, kNewProjectRow)
                                             : QString::fromStdString(project_.path.stem().string());
  return QString(kProductName) + " - " + Text(speech_.words, kApplicationRow) + " - " + name;
}

QString ProjectFiles::ProposeDocument(const QString& ending) const {
  return proposed_.ForDocument(project_.path, ending);
}

void ProjectFiles::DocumentWritten(const std::filesystem::path& file) {
  proposed_.Written(project_.path, file);
}

bool ProjectFiles::LeaveUnsaved() {
  if (open_.IsSaved()) return true;
  const Message question = {
      {kUnsavedProjectRow}, {kSaveBeforeGoingOnRow}, {kYesAndNoMeaningRow}, {kCancelMeaningRow}};
  const std::optional<bool> save = speech_.boxes.ask_or_cancel(Text(speech_.words, question));
  if (!save) return false;
  return !*save || Save();
}

bool ProjectFiles::New() {
  if (!LeaveUnsaved()) return false;
  open_.Replace(services_.new_setup ? services_.new_setup() : elements::Setup());
  Rename({});
  emit Emptied();
  return true;
}

bool ProjectFiles::Open() {
  if (!LeaveUnsaved()) return false;
  const QString file = speech_.boxes.choose_file_to_open({.title = Text(speech_.words, kChooseProjectRow),
                                                          .filter = kFilter,
                                                          .start = proposed_.ToOpen(project_.path)});
  return !file.isEmpty() && Load(file.toStdString());
}

bool ProjectFiles::Open(const std::filesystem::path& project) { return LeaveUnsaved() && Load(project); }

bool ProjectFiles::Load(const std::filesystem::path& file) {
  // Looked at before it is read: what is written in between is then noticed when saving.
  const ProjectFile project = ProjectFile::Now(file);
  try {
    open_.Replace(services_.read_project(file));
  } catch (const std::exception& failure) {
    TellFailure(failure);
    return false;
  }
  memory_.Remember(file);
  Rename(project);
  emit Opened();
  if (!open_.Setup().calculation)
    speech_.boxes.tell(Tone::kInformation, Text(speech_.words, kProjectOfUnknownCalculationRow));
  return true;
}

bool ProjectFiles::Begin(const std::filesystem::path& pattern) {
  if (!LeaveUnsaved()) return false;
  try {
    elements::Setup setup = services_.read_project(pattern);
    if (services_.new_setup) setup.information = services_.new_setup().information;
    open_.Replace(std::move(setup));
  } catch (const std::exception& failure) {
    TellFailure(failure);
    return false;
  }
  Rename({});
  emit Opened();
  if (!open_.Setup().calculation)
    speech_.boxes.tell(Tone::kInformation, Text(speech_.words, kProjectOfUnknownCalculationRow));
  return true;
}

void ProjectFiles::KeepAsTemplate() {
  const QString name = project_.path.empty() ? QString() : FromUtf8(project_.path.stem());
  if (const auto file = templates_.Keep(open_.Setup(), name)) emit TemplateKept(*file);
}

bool ProjectFiles::Save() {
  if (project_.path.empty() || proposed_.IsOriginal(project_.path)) return SaveAs();
  const QString changed =
      Text(speech_.words, kFileChangedQuestionRow) + '\n' + FromUtf8(project_.path.string());
  if (project_.HasChanged() && !speech_.boxes.ask(changed)) return false;
  return Write(project_.path);
}

bool ProjectFiles::SaveAs() {
  const auto file = AskFileToSave(speech_,
                                  {.title = Text(speech_.words, kSaveProjectRow),
                                   .filter = kFilter,
                                   .start = proposed_.ToSave(project_.path)},
                                  kEnding);
  if (!file) return false;
  if (proposed_.IsOriginal(*file)) {
    speech_.boxes.tell(Tone::kInformation,
                       Text(speech_.words, kOriginalStaysRow) + '\n' + FromUtf8(file->string()));
    return false;
  }
  return Write(*file);
}

bool ProjectFiles::Write(const std::filesystem::path& file) {
  try {
    services_.write_project(file, open_.Setup());
  } catch (const std::exception& failure) {
    TellFailure(failure);
    return false;
  }
  open_.MarkSaved();
  recovery_.Discard();
  memory_.Remember(file);
  Rename(ProjectFile::Now(file));
  emit Saved(file);
  return true;
}

bool ProjectFiles::OfferRecovery() {
  std::vector<LostWork> works = recovery_.LeftBehind();
  while (!works.empty()) {
    const LostWorkAnswer answer = services_.ask_about_lost_work(works);
    if (answer.choice == LostWorkChoice::kLater) return false;
    const auto work = works.begin() + static_cast<std::ptrdiff_t>(answer.which);
    if (answer.choice == LostWorkChoice::kRecover) return Recover(std::move(*work));
    if (!AskToDelete(*work)) continue;
    Recovery::Drop(*work);
    works.erase(work);
  }
  return false;
}

bool ProjectFiles::Recover(LostWork work) {
  try {
    elements::Setup setup = services_.read_project(work.copy);
    if (!setup.calculation)
      throw Failure({{kProjectOfUnknownCalculationRow}}, "copy of an unknown calculation");
    open_.Replace(std::move(setup));
  } catch (const std::exception& failure) {
    TellFailure(failure);
    return false;
  }
  Rename(work.project);
  open_.DropResult();  // it is unsaved work again
  emit Recovered();
  recovery_.TakeOver(std::move(work));
  recovery_.Keep();
  emit Opened();
  return true;
}

bool ProjectFiles::AskToDelete(const LostWork& work) const {
  const QString named = work.Name(Text(speech_.words, kNewProjectRow)) + ", " + work.Time();
  return speech_.boxes.ask(Text(speech_.words, kDeleteLostQuestionRow) + '\n' + named);
}

void ProjectFiles::FollowChoice(std::optional<elements::Calculation> before) {
  const auto& now = open_.Setup().calculation;
  if (!before || !now || project_.path.empty()) return;
  const elements::CalculationRow& old_row = RowOf(*before);
  const elements::CalculationRow& new_row = RowOf(*now);
  if (old_row.button != new_row.button || old_row.family != new_row.family) Rename({});
}

void ProjectFiles::Rename(ProjectFile project) {
  project_ = std::move(project);
  recovery_.BelongsTo(project_);
  emit Renamed();
}

void ProjectFiles::TellFailure(const std::exception& failure) const {
  const auto* known = dynamic_cast<const Failure*>(&failure);
  const QString words = known != nullptr ? Text(speech_.words, known->UserMessage())
                                         : Text(speech_.words, kUnexpectedRow) + '\n' + failure.what();
  speech_.boxes.tell(Tone::kCritical, words);
}

}  // namespace velmar::shell
