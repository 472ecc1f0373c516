#pragma once

#include <QDialog>
#include <optional>

#include "shell/structures/entry_model.h"
#include "shell/structures/structure_sources.h"
#include "shell/windows/window_tools.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTableView;

namespace velmar::shell {
class SearchField;
}  // namespace velmar::shell

namespace velmar::structures {

/// "Database risultati" (`Form7`): lists the stored results, searches, copies and deletes them, and hands one
/// over when it was opened for that.
class SavedResultsWindow : public QDialog {
  Q_OBJECT

 public:
  /// What the window is opened for (`ContestoRisultati`).
  enum class Purpose { kList, kTake };

  SavedResultsWindow(shell::WindowTools tools, ResultSource source, Purpose purpose,
                     QWidget* parent = nullptr);
  ~SavedResultsWindow() override;

  /// Reads the table anew; the selected entry stays selected when it is still there.
  void Refresh();

 signals:
  /// The chosen result is handed over.
  void Taken(const velmar::calculation::FacadePart& part);
  /// A result is gone.
  void Removed(velmar::structures::ResultKind kind, const std::string& name);

 private:
  QWidget* MakeKinds();
  QWidget* MakeGrid();
  QWidget* MakeDetails();
  QWidget* MakeButtons();
  void AddKeys();
  ResultKind Kind() const;
  std::string SelectedName() const;
  void SelectRow(int row);
  void ShowSelected();
  void Copy();
  void Delete();
  void Take();

  shell::WindowTools tools_;
  ResultSource source_;
  Purpose purpose_;
  EntryModel model_;
  EntrySearch shown_;
  QRadioButton* airborne_ = nullptr;
  QRadioButton* impact_ = nullptr;
  QRadioButton* lining_ = nullptr;
  shell::SearchField* search_ = nullptr;
  QTableView* grid_ = nullptr;
  QLineEdit* name_ = nullptr;
  QPlainTextEdit* description_ = nullptr;
  QLabel* messages_ = nullptr;  ///< what the run of the stored result told
  QPushButton* take_ = nullptr;
  QPushButton* copy_ = nullptr;
  QPushButton* delete_ = nullptr;
};

}  // namespace velmar::structures
