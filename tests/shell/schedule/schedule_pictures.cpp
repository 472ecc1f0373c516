// Makes pictures of the window of a report of several projects: schedule_pictures FOLDER
#include <QApplication>
#include <QDir>
#include <QStandardPaths>

#include "shell/schedule/schedule_dialog.h"
#include "tests/shell/support/window_fixture.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  using velmar::shell::ScheduleDialog;
  velmar::shell::WindowFixture fixture;
  const QString folder = argc > 1 ? argv[1] : ".";
  ScheduleDialog dialog(fixture.services, {});
  dialog.show();
  dialog.grab().save(folder + "/abaco-vuoto.png");
  QStringList projects;
  for (const QString& name : QDir(EXAMPLES).entryList({"*.drav"})) projects << QDir(EXAMPLES).filePath(name);
  dialog.Add(projects.mid(0, 12));
  dialog.grab().save(folder + "/abaco-progetti.png");
  return 0;
}
