// material_pictures OUT.png light|dark COMMAND WINDOW [SEARCH]: the window that a menu entry of the database
// opens, with the shipped materials, as a picture: mnuDatabaseVediMateriali Form2, or DB_base
// FormSceltaMateriali.
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPixmap>

#include "shell/commands/material_commands.h"
#include "tests/shell/support/window_fixture.h"
#include "tests/shell/support/window_looks.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() < 5) return 2;
  velmar::shell::SetLooks(arguments.at(2) == "dark");
  velmar::shell::WindowFixture fixture;
  velmar::shell::MaterialCommands commands(
      fixture.open, fixture.services, {},
      std::filesystem::path(SHARE) / "Databases" / "Database" / "Database.mdb",
      [](auto&&...) { return std::nullopt; });
  fixture.services.Add(commands);
  fixture.MakeWindow();
  fixture.window->show();
  fixture.Find<QAction>(arguments.at(3))->trigger();
  auto* window = fixture.Find<QDialog>(arguments.at(4));
  if (arguments.size() > 5) window->findChild<QLineEdit*>("TextCerca")->setText(arguments.at(5));
  for (int i = 0; i < 5; ++i) QApplication::processEvents();
  const bool saved = window->grab().save(arguments.at(1));
  fixture.window.reset();
  return saved ? 0 : 1;
}
