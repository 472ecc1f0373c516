#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "shell/structures/entry_model.h"
#include "shell/structures/library_tree.h"
#include "shell/structures/structure_sources.h"
#include "shell/windows/window_tools.h"

class QComboBox;
class QLineEdit;
class QListView;
class QSplitter;
class QTreeWidget;

namespace velmar::structures {

/// Tree of files, keyword filter, search and list of tests: what library and comparison choose a test with.
class TestChooser : public QWidget {
 public:
  /// Object names of the controls, and what they show.
  struct Controls {
    const char* tree = "TreeView1";
    const char* keywords = "Combo1";
    const char* list = "List1";
    std::vector<TreeNode> nodes{};
    bool filters_uses = false;  ///< offers the filter of what a test can serve for (`List1_uso`)
  };
  struct Listener {
    /// Another file was opened; the description is that of its first test.
    std::function<void(const LibraryFile&, const QString& description)> file{};
    /// A test was chosen, or none is any more.
    std::function<void(const std::optional<MeasuredTest>&)> test{};
    /// A branch that holds no series was clicked: a measurement of it is to be entered. Without it such a
    /// branch shows nothing.
    std::function<void(Branch)> enter{};
  };

  TestChooser(const shell::WindowTools& tools, LibrarySource source, const Controls& controls,
              Listener listener, QWidget* parent = nullptr);

  const std::optional<MeasuredTest>& Chosen() const { return chosen_; }
  const std::optional<LibraryFile>& File() const { return file_; }
  /// Reads files and tests anew and shows the test `name` of the series `series` of `branch`.
  void ShowTest(Branch branch, const std::string& series, const QString& name);
  /// No test is chosen any more.
  void Clear();
  /// Reads files and tests anew; what is chosen stays chosen while it is still there.
  void Refresh();
  QSplitter* Splitter() const { return splitter_; }

 private:
  QWidget* MakeTree(const Controls& controls);
  QWidget* MakeList(const Controls& controls);
  void FillTree();
  void Refill(const std::optional<LibraryFile>& file, const QString& keyword, const QString& name);
  void OpenFile(const LibraryFile& file);
  void FillList();
  void Choose(const QString& name);

  shell::WindowTools tools_;
  LibrarySource source_;
  Listener listener_;
  EntryModel model_;
  EntrySearch shown_;
  std::vector<TreeNode> nodes_;
  std::optional<LibraryFile> file_;
  std::vector<TestEntry> tests_;
  std::optional<MeasuredTest> chosen_;
  QSplitter* splitter_ = nullptr;
  QTreeWidget* tree_ = nullptr;
  QComboBox* keywords_ = nullptr;
  QComboBox* uses_ = nullptr;
  QLineEdit* search_ = nullptr;
  QListView* list_ = nullptr;
};

}  // namespace velmar::structures
