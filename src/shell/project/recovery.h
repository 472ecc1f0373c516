#pragma once

#include <QLockFile>
#include <QObject>
#include <QTimer>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

#include "calculation/open/open_calculation.h"
#include "shell/project/lost_work.h"
#include "shell/project/project_services.h"

namespace velmar::shell {

/// Keeps a copy of unsaved work beside the user's other data, so that a crash, a power cut or a window closed
/// in haste loses nothing. Each running program holds a copy of its own, under a lock, and beside it which
/// project it belongs to; a copy whose lock is free was left behind and is offered at the next start.
class Recovery : public QObject {
  Q_OBJECT
 public:
  /// @param folder of the copies of all running programs; empty: none are made
  /// @param delay_ms how long after a change the copy is written
  Recovery(const calculation::OpenCalculation& open, const ProjectServices& services,
           std::filesystem::path folder, int delay_ms, QObject* parent = nullptr);
  ~Recovery() override;

  /// The open work belongs to `project` from now on.
  void BelongsTo(ProjectFile project) { project_ = std::move(project); }
  /// Something changed: a copy is due, or none is needed any more.
  void Follow();
  /// The copy is written now, if one is due.
  void WriteNow();
  /// Unsaved work is written now, due or not. @return whether it is there to be offered at the next start
  bool Keep();
  /// Whether there is work that ought to be kept.
  bool HasWork() const;
  /// The unsaved work was given up by the user, or saved.
  void Discard();

  /// What other runs left behind, the latest first.
  std::vector<LostWork> LeftBehind() const;
  /// `work` is the open set-up now. What was left behind goes once this run has a copy of its own, or the
  /// work was saved or given up.
  void TakeOver(LostWork work) { taken_over_ = std::move(work); }
  /// Removes `work` for good.
  static void Drop(const LostWork& work);

 signals:
  /// The unsaved work is there to be offered at the next start.
  void Kept();
  /// It is not: the copy could not be written.
  void NotKept();

 private:
  bool Write();
  bool WriteProjectName() const;
  void DropTakenOver();

  const calculation::OpenCalculation& open_;
  const ProjectServices& services_;
  std::filesystem::path folder_;
  std::filesystem::path copy_;
  std::unique_ptr<QLockFile> lock_;
  ProjectFile project_;
  std::optional<LostWork> taken_over_;
  QTimer due_;
};

}  // namespace velmar::shell
