#pragma once

#include <QObject>
#include <atomic>
#include <exception>
#include <filesystem>
#include <memory>
#include <optional>

#include "documents/schedule_maker.h"

class QThread;

namespace velmar::shell {

/// Makes a report of several projects beside the window, in a thread of its own, and writes it to its file,
/// whole or not at all.
class ScheduleJob : public QObject {
  Q_OBJECT
 public:
  explicit ScheduleJob(QObject* parent = nullptr) : QObject(parent) {}
  /// Cancels, and waits until the thread is done.
  ~ScheduleJob() override;

  /// Begins. Nothing may be running.
  void Start(documents::ScheduleOrder order, documents::ScheduleTools tools, std::filesystem::path target);
  /// Asks it to end: soon, and without a file.
  void Cancel() { cancelled_ = true; }
  bool Running() const { return thread_ != nullptr; }

  /// What was made; nothing when it was cancelled or failed. Once, behind Ended().
  std::optional<documents::MadeSchedule> TakeMade() { return std::move(made_); }
  /// Why it failed; null when it did not.
  std::exception_ptr Failure() const { return failure_; }

 signals:
  /// @param project that it is about; empty while the document is bound
  void Progressed(int done, int steps, const QString& project);
  void Ended();

 private:
  void Work(const documents::ScheduleOrder& order, const documents::ScheduleTools& tools,
            const std::filesystem::path& target);

  QThread* thread_ = nullptr;
  std::atomic<bool> cancelled_ = false;
  std::optional<documents::MadeSchedule> made_{};
  std::exception_ptr failure_{};
};

}  // namespace velmar::shell
