#pragma once

#include <QDialog>
#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

#include "documents/schedule_maker.h"
#include "shell/schedule/schedule_job.h"
#include "shell/windows/boxes.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QPushButton;

namespace velmar::shell {

/// What the window of a report of several projects is given.
struct ScheduleServices {
  /// Makes what a document is made with; called in the window's thread.
  std::function<documents::ScheduleTools()> tools{};
  /// Asks for project files; none when the user cancels.
  std::function<QStringList(const FileQuestion&)> choose_projects{};
  /// The file that a document with an ending (".docx") is offered.
  std::function<QString(const QString& ending)> propose{};
  std::optional<elements::DocumentLanguage> language{};  ///< none: as the studio profile says
  /// A document was written.
  std::function<void(const std::filesystem::path&)> written{};
};

/// The window of a report of several projects (`Abaco`): the list of projects, format and title; makes the
/// document beside itself with a bar of progress. Cancelling leaves no file; a project without a result is
/// named in the document and told.
class ScheduleDialog : public QDialog {
  Q_OBJECT
 public:
  ScheduleDialog(const Speech& speech, ScheduleServices services, QWidget* parent = nullptr);

  /// Puts `files` behind those in the list; one that is there already is not taken twice.
  void Add(const QStringList& files);

  void reject() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Build();
  void AddFromDisk();
  void RemoveChosen();
  void Move(int by);
  void Make();
  void ShowProgress(int done, int steps, const QString& project);
  void End();
  void TellMade(const documents::MadeSchedule& made);
  void Follow();
  std::vector<std::filesystem::path> Projects() const;

  const Speech& speech_;
  ScheduleServices services_;
  ScheduleJob job_{};
  std::filesystem::path target_{};
  QListWidget* list_ = nullptr;
  QLineEdit* title_ = nullptr;
  QComboBox* format_ = nullptr;
  QCheckBox* go_on_ = nullptr;
  QLabel* state_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QPushButton* add_ = nullptr;
  QPushButton* remove_ = nullptr;
  QPushButton* up_ = nullptr;
  QPushButton* down_ = nullptr;
  QPushButton* make_ = nullptr;
  QPushButton* close_ = nullptr;
};

}  // namespace velmar::shell
