#pragma once

#include <QListWidget>
#include <filesystem>
#include <vector>

#include "presentation/texts/words.h"

namespace velmar::shell {

struct ProjectGlance;

/// Projects to open by a click or by Enter: their names and, in quiet letters, what they are, when they were
/// written and where they stand.
class ProjectList : public QListWidget {
  Q_OBJECT
 public:
  explicit ProjectList(presentation::Words words, QWidget* parent = nullptr);

  /// Shows `projects`, or that there is none.
  void Show(const std::vector<std::filesystem::path>& projects);
  /// Puts beside `project` what it is.
  void Tell(const std::filesystem::path& project, const ProjectGlance& glance);

 signals:
  void Opened(const std::filesystem::path& project);

 private:
  void OpenCurrent();

  presentation::Words words_;
};

}  // namespace velmar::shell
