#pragma once

#include <QLockFile>
#include <QObject>
#include <QTimer>
#include <filesystem>
#include <memory>
#include <optional>

#include "calculation/open_calculation.h"
#include "shell/project/project_services.h"

namespace velmar::shell {

/// Keeps a copy of unsaved work beside the user's other data, so that a crash, a power cut or a window closed
/// in haste loses nothing. Each running program holds a copy of its own, under a lock; a copy whose lock is
/// free was left behind and is offered at the next start.
class Recovery : public QObject {
  Q_OBJECT
 public:
  /// @param folder of the copies of all running programs; empty: none are made
  /// @param delay_ms how long after a change the copy is written
  Recovery(const calculation::OpenCalculation& open, const ProjectServices& services,
           std::filesystem::path folder, int delay_ms, QObject* parent = nullptr);
  ~Recovery() override;

  /// Something changed: a copy is due, or none is needed any more.
  void Follow();
  /// The copy is written now, if one is due.
  void WriteNow();
  /// Unsaved work is written now, due or not. @return whether it is there to be offered at the next start
  bool Keep();
  /// The unsaved work was given up by the user, or saved.
  void Discard();

  /// A copy that another run left behind, the latest first; the caller takes it over or drops it.
  std::optional<std::filesystem::path> LeftBehind() const;
  static void Drop(const std::filesystem::path& copy);

 private:
  bool IsUnsaved() const;
  bool Write();

  const calculation::OpenCalculation& open_;
  const ProjectServices& services_;
  std::filesystem::path folder_;
  std::filesystem::path copy_;
  std::unique_ptr<QLockFile> lock_;
  QTimer due_;
};

}  // namespace velmar::shell
