#pragma once

#include <QListWidget>
#include <filesystem>
#include <vector>

namespace velmar::shell {

/// Projects to open by a click or by Enter: their names and, in quiet letters, their folders.
class ProjectList : public QListWidget {
  Q_OBJECT
 public:
  explicit ProjectList(QWidget* parent = nullptr);

  /// Shows `projects`, or the words `none` when there is none.
  /// @param with_folders whether the folder stands under each name
  void Show(const std::vector<std::filesystem::path>& projects, const QString& none, bool with_folders);

 signals:
  void Opened(const std::filesystem::path& project);

 private:
  void OpenCurrent();
};

}  // namespace velmar::shell
