#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>
#include <filesystem>
#include <vector>

class QMainWindow;
class QSplitter;

namespace velmar::shell {

/// What the window remembers from one start to the next, in a file of the user's own: sizes, recent projects,
/// where documents go, what was said already, the switch of the continuous calculation. With an empty path
/// only as long as the program runs, and no sizes and projects.
class WindowMemory {
 public:
  explicit WindowMemory(std::filesystem::path file);

  std::vector<std::filesystem::path> RecentProjects() const;
  /// `project` is the most recent one now.
  void Remember(const std::filesystem::path& project);
  void ForgetProjects();

  /// Where the last document went.
  struct LastDocument {
    std::filesystem::path project{};  ///< what it was a document of; empty: of work without a name
    std::filesystem::path folder{};
  };
  LastDocument Document() const { return document_; }
  void RememberDocument(LastDocument document);

  /// Whether this is the first time that somebody asks about `what`; from then on it is not.
  bool IsFirst(const QString& what);
  /// Whether each change is calculated at once; at first it is not.
  bool IsContinuous() const;
  void RememberContinuous(bool on);

  void SaveSizes(const QMainWindow& window, const QSplitter& sides, const QSplitter& results) const;
  /// @return whether sizes were remembered
  bool RestoreSizes(QMainWindow& window, QSplitter& sides, QSplitter& results) const;

 private:
  std::filesystem::path file_;
  LastDocument document_;
  QSet<QString> known_;
};

}  // namespace velmar::shell
