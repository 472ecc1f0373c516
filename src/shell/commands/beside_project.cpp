#include "shell/commands/beside_project.h"

#include <QDir>
#include <QFileInfo>
#include <QWidget>

namespace velmar::shell {

QString BesideProject(const QWidget* window, const QString& ending) {
  if (window == nullptr || window->windowFilePath().isEmpty()) return {};
  const QFileInfo project(window->windowFilePath());
  return project.dir().filePath(project.completeBaseName() + ending);
}

}  // namespace velmar::shell
