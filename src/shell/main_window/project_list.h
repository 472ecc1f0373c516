#pragma once

#include <QListWidget>
#include <filesystem>
#include <functional>
#include <vector>

namespace velmar::shell {

/// Projects to open by a click or by Enter: their names and, in quiet letters, their folders.
class ProjectList : public QListWidget {
 public:
  ProjectList(std::function<void(const std::filesystem::path&)> open, QWidget* parent = nullptr);

  /// Shows `projects`, or the words `none` when there is none.
  /// @param with_folders whether the folder stands under each name
  void Show(const std::vector<std::filesystem::path>& projects, const QString& none, bool with_folders);

 private:
  void OpenCurrent();

  std::function<void(const std::filesystem::path&)> open_;
};

}  // namespace velmar::shell
