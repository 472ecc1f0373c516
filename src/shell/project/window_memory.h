#pragma once

#include <QByteArray>
#include <filesystem>
#include <vector>

class QMainWindow;
class QSplitter;

namespace velmar::shell {

/// What the window remembers from one start to the next, in a file of the user's own: sizes, recent
/// projects and the switch of the continuous calculation. An empty path remembers nothing.
class WindowMemory {
 public:
  explicit WindowMemory(std::filesystem::path file) : file_(std::move(file)) {}

  std::vector<std::filesystem::path> RecentProjects() const;
  /// `project` is the most recent one now.
  void Remember(const std::filesystem::path& project);
  void ForgetProjects();

  /// Whether each change is calculated at once; at first it is not.
  bool IsContinuous() const;
  void RememberContinuous(bool on);

  void SaveSizes(const QMainWindow& window, const QSplitter& sides, const QSplitter& results) const;
  /// @return whether sizes were remembered
  bool RestoreSizes(QMainWindow& window, QSplitter& sides, QSplitter& results) const;

 private:
  std::filesystem::path file_;
};

}  // namespace velmar::shell
