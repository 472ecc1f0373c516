#pragma once

#include <QString>

class QWidget;

namespace velmar::shell {

/// The file that a report of the project in the main window `window` is offered: beside the project, of its
/// name, with `ending` (".docx"). Empty without a project.
QString BesideProject(const QWidget* window, const QString& ending);

}  // namespace velmar::shell
