#pragma once

#include <QDialog>
#include <functional>
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

namespace velmar::structures {

/// "Database risultati" (`Form7`): lists the stored results, searches, copies and deletes them, and hands one
/// over when it was opened for that.
class SavedResultsWindow : public QDialog {
 public:
  /// What the window tells of itself.
  struct Listener {
    /// Takes the chosen result (`ContestoRisultati`); empty when the window only lists.
    std::function<void(const calculation::FacadePart&)> take{};
    /// A result is gone: its name leaves the lists of the main window.
    std::function<void(ResultKind, const std::string& name)> removed{};
  };

  SavedResultsWindow(shell::WindowTools tools, ResultSource source, Listener listener,
                     QWidget* parent = nullptr);
  ~SavedResultsWindow() override;

  /// Reads the table anew; the selected entry stays selected when it is still there.
  void Refresh();

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
  Listener listener_;
  EntryModel model_;
  EntrySearch shown_;
  QRadioButton* airborne_ = nullptr;
  QRadioButton* impact_ = nullptr;
  QRadioButton* lining_ = nullptr;
  QLineEdit* search_ = nullptr;
  QTableView* grid_ = nullptr;
  QLineEdit* name_ = nullptr;
  QPlainTextEdit* description_ = nullptr;
  QLabel* messages_ = nullptr;  ///< what the run of the stored result told
  QPushButton* take_ = nullptr;
  QPushButton* copy_ = nullptr;
  QPushButton* delete_ = nullptr;
};

}  // namespace velmar::structures
