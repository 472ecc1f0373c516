#include "shell/project/recovery.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QUuid>
#include <algorithm>
#include <system_error>

#include "foundation/failure.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr const char* kCopyEnding = ".drav";

QString FromUtf8(const std::filesystem::path& path) { return QString::fromStdString(path.string()); }

std::filesystem::path LockOf(std::filesystem::path copy) { return copy.replace_extension(".lock"); }

/// Which project a copy belongs to.
std::filesystem::path NameOf(std::filesystem::path copy) { return copy.replace_extension(".progetto"); }

std::unique_ptr<QLockFile> LockFor(const std::filesystem::path& copy) {
  auto lock = std::make_unique<QLockFile>(FromUtf8(LockOf(copy)));
  lock->setStaleLockTime(0);
  return lock;
}

ProjectFile ProjectOf(const std::filesystem::path& copy) {
  QFile file(FromUtf8(NameOf(copy)));
  return file.open(QIODevice::ReadOnly) ? FromLines(file.readAll()) : ProjectFile{};
}

void Remove(const std::filesystem::path& copy) {
  std::error_code error;
  std::filesystem::remove(copy, error);
  std::filesystem::remove(NameOf(copy), error);
}

}  // namespace

Recovery::Recovery(const calculation::OpenCalculation& open, const ProjectServices& services,
                   std::filesystem::path folder, int delay_ms, QObject* parent)
    : QObject(parent), open_(open), services_(services), folder_(std::move(folder)) {
  due_.setSingleShot(true);
  due_.setInterval(delay_ms);
  connect(&due_, &QTimer::timeout, this, [this] { Write(); });
  if (folder_.empty()) return;
  std::error_code error;
  std::filesystem::create_directories(folder_, error);
  copy_ = folder_ / (QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString() + kCopyEnding);
  lock_ = LockFor(copy_);
  lock_->tryLock(0);
}

Recovery::~Recovery() {
  blockSignals(true);  // nobody is left to be told
  WriteNow();
}

void Recovery::Follow() {
  if (copy_.empty()) return;
  if (HasWork()) {
    if (!due_.isActive()) due_.start();
  } else {
    Discard();
  }
}

void Recovery::WriteNow() {
  if (!due_.isActive()) return;
  due_.stop();
  Write();
}

bool Recovery::Keep() {
  if (!HasWork()) return false;
  due_.stop();
  return Write();
}

bool Recovery::HasWork() const {
  return !copy_.empty() && !open_.IsSaved() && open_.Setup().calculation.has_value();
}

bool Recovery::Write() {
  try {
    // The name first: a name without a copy is nothing, a copy under a wrong name could replace a project.
    if (!WriteProjectName()) throw Failure({}, "the project of a copy cannot be written");
    services_.write_project(copy_, open_.Setup());
  } catch (const std::exception&) {
    emit NotKept();
    return false;
  }
  DropTakenOver();
  emit Kept();
  return true;
}

bool Recovery::WriteProjectName() const {
  std::error_code error;
  if (project_.path.empty()) return std::filesystem::remove(NameOf(copy_), error) || !error;
  const QByteArray lines = ToLines(project_);
  QSaveFile file(FromUtf8(NameOf(copy_)));
  return file.open(QIODevice::WriteOnly) && file.write(lines) == lines.size() && file.commit();
}

void Recovery::Discard() {
  due_.stop();
  if (!copy_.empty()) Remove(copy_);
  DropTakenOver();
}

void Recovery::DropTakenOver() {
  if (taken_over_) Drop(*taken_over_);
  taken_over_.reset();
}

std::vector<LostWork> Recovery::LeftBehind() const {
  std::vector<LostWork> works;
  if (copy_.empty()) return works;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(folder_, error)) {
    const std::filesystem::path& copy = entry.path();
    if (copy == copy_ || copy.extension() != kCopyEnding) continue;
    std::shared_ptr<QLockFile> lock = LockFor(copy);
    if (!lock->tryLock(0)) continue;  // of a program that runs
    works.push_back({copy, ProjectOf(copy), QFileInfo(FromUtf8(copy)).lastModified(), std::move(lock)});
  }
  std::ranges::sort(works, std::ranges::greater(), &LostWork::changed);
  return works;
}

void Recovery::Drop(const LostWork& work) {
  Remove(work.copy);
  if (work.lock) work.lock->unlock();
}

}  // namespace velmar::shell
