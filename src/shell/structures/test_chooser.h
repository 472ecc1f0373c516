#pragma once

#include <QWidget>
#include <filesystem>
#include <map>
#include <optional>

#include "shell/structures/entry_model.h"
#include "shell/structures/library_tree.h"
#include "shell/structures/structure_sources.h"
#include "shell/windows/window_tools.h"

class QComboBox;
class QListView;
class QSplitter;
class QTreeWidget;

namespace velmar::shell {
class FilterBox;
class SearchField;
}  // namespace velmar::shell

namespace velmar::structures {

/// Tree of files, keyword filter, search and list of tests: what library and comparison choose a test with.
class TestChooser : public QWidget {
  Q_OBJECT

 public:
  /// Object names of the controls, and what they show.
  struct Controls {
    const char* tree = "TreeView1";
    const char* keywords = "Combo1";
    const char* list = "List1";
    std::vector<TreeNode> nodes{};
    bool filters_uses = false;  ///< offers the filter of what a test can serve for (`List1_uso`)
    bool enters =
        false;  ///< a branch that holds no series asks for one; without it such a branch shows nothing
  };

  TestChooser(const shell::WindowTools& tools, LibrarySource source, const Controls& controls,
              QWidget* parent = nullptr);

  const std::optional<MeasuredTest>& Chosen() const { return chosen_; }
  const std::optional<LibraryFile>& File() const { return file_; }
  /// Reads files and tests anew and shows the test `name` of the series `series` of `branch`.
  void ShowTest(Branch branch, const std::string& series, const QString& name);
  /// No test is chosen any more.
  void Clear();
  /// Reads files and tests anew; what is chosen stays chosen while it is still there.
  void Refresh();
  /// What is typed next is searched for, in the open file first and then in the others.
  void FocusSearch();
  QSplitter* Splitter() const { return splitter_; }

 signals:
  /// Another file was opened; the description is that of its first test.
  void FileOpened(const velmar::structures::LibraryFile& file, const QString& description);
  /// A test was chosen, or none is any more.
  void TestChosen(const std::optional<velmar::structures::MeasuredTest>& test);
  /// A branch that holds no series was clicked: a measurement of it is to be entered.
  void EntryWanted(velmar::structures::Branch branch);
  /// The chosen test was meant: a double click on it, or Enter in the list.
  void Meant();

 private:
  QWidget* MakeTree(const Controls& controls);
  QWidget* MakeList(const Controls& controls);
  void FillTree();
  void Refill(const std::optional<LibraryFile>& file, const QString& keyword, const QString& name);
  void OpenFile(const LibraryFile& file);
  void ShowKeyword(const QString& keyword);
  void FillList();
  void Choose(const QString& name);
  /// Where the open file has no hit, the first one that has is opened.
  void SearchOtherFiles();
  std::optional<LibraryFile> FirstFileWithHit();
  /// Enter in the search: the best hit is chosen where none is; without one that is said.
  void TakeHit();

  shell::WindowTools tools_;
  LibrarySource source_;
  bool enters_;
  EntryModel model_;
  EntrySearch shown_;
  std::vector<TreeNode> nodes_;
  std::optional<LibraryFile> file_;
  std::vector<TestEntry> tests_;
  std::optional<MeasuredTest> chosen_;
  std::map<std::filesystem::path, std::vector<QStringList>> searched_;  ///< names of files that were searched
  QSplitter* splitter_ = nullptr;
  QTreeWidget* tree_ = nullptr;
  shell::FilterBox* keywords_ = nullptr;
  QString keyword_{};  ///< that filters the list; empty for all
  QComboBox* uses_ = nullptr;
  shell::SearchField* search_ = nullptr;
  QListView* list_ = nullptr;
};

}  // namespace velmar::structures
