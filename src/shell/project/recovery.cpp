#include "shell/project/recovery.h"

#include <QUuid>
#include <system_error>

#include "foundation/failure.h"

namespace velmar::shell {
namespace {

constexpr const char* kCopyEnding = ".drav";

std::filesystem::path LockOf(const std::filesystem::path& copy) {
  std::filesystem::path lock = copy;
  return lock.replace_extension(".lock");
}

bool IsHeld(const std::filesystem::path& copy) {
  QLockFile lock(QString::fromStdString(LockOf(copy).string()));
  lock.setStaleLockTime(0);
  return !lock.tryLock(0);
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
  lock_ = std::make_unique<QLockFile>(QString::fromStdString(LockOf(copy_).string()));
  lock_->setStaleLockTime(0);
  lock_->tryLock(0);
}

Recovery::~Recovery() { WriteNow(); }

void Recovery::Follow() {
  if (copy_.empty()) return;
  if (IsUnsaved()) {
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
  if (copy_.empty() || !IsUnsaved()) return false;
  due_.stop();
  return Write();
}

bool Recovery::IsUnsaved() const { return !open_.IsSaved() && open_.Setup().calculation.has_value(); }

bool Recovery::Write() {
  try {
    services_.write_project(copy_, open_.Setup());
    return true;
  } catch (const std::exception&) {
    // The copy is a second net: a full disk is told when the user saves, not while typing.
    return false;
  }
}

void Recovery::Discard() {
  due_.stop();
  std::error_code error;
  if (!copy_.empty()) std::filesystem::remove(copy_, error);
}

std::optional<std::filesystem::path> Recovery::LeftBehind() const {
  std::optional<std::filesystem::path> latest;
  std::filesystem::file_time_type latest_time;
  std::error_code error;
  if (copy_.empty()) return latest;
  for (const auto& entry : std::filesystem::directory_iterator(folder_, error)) {
    const std::filesystem::path& path = entry.path();
    if (path == copy_ || path.extension() != kCopyEnding || IsHeld(path)) continue;
    const auto time = entry.last_write_time(error);
    if (latest && time <= latest_time) continue;
    latest = path;
    latest_time = time;
  }
  return latest;
}

void Recovery::Drop(const std::filesystem::path& copy) {
  std::error_code error;
  std::filesystem::remove(copy, error);
  std::filesystem::remove(LockOf(copy), error);
}

}  // namespace velmar::shell
