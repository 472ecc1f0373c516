// window_pictures OUT.png WIDTH HEIGHT light|dark PROJECT.drav|- [TAB [CAVITY]]: the main window
// with the result of a project, as a picture; CAVITY is the type of a SEA cavity. Without a project it is the
// start screen; the folder that VELMAR_PICTURE_USER names has the user's recent projects (finestra.ini) and
// templates (modelli).
#include <QApplication>
#include <QListWidget>
#include <QPixmap>
#include <QTabWidget>
#include <QTest>

#include "calculation/edits/layer_edits.h"
#include "tests/shell/support/window_looks.h"

namespace {

constexpr int kPatienceMs = 60'000;

/// Waits until every list of projects tells what they are.
void WaitForProjects(const velmar::shell::WindowFixture& fixture) {
  const auto told = [&] {
    for (const char* name : {"Recenti", "Costruzioni"}) {
      const auto* list = fixture.Find<QListWidget>(name);
      for (int i = 0; i < list->count(); ++i) {
        const QListWidgetItem& item = *list->item(i);
        if (item.flags() != Qt::NoItemFlags && item.data(Qt::AccessibleTextRole).isNull()) return false;
      }
    }
    return true;
  };
  static_cast<void>(QTest::qWaitFor(told, kPatienceMs));
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() < 6) return 2;
  velmar::shell::SetLooks(arguments.at(4) == "dark");
  velmar::shell::WindowFixture fixture;
  fixture.services.places.examples = EXAMPLES;
  if (const QString user = qEnvironmentVariable("VELMAR_PICTURE_USER"); !user.isEmpty()) {
    fixture.services.places.settings = (user + "/finestra.ini").toStdString();
    fixture.services.places.templates = (user + "/modelli").toStdString();
  }
  fixture.MakeWindow();
  if (arguments.at(5) != "-") {
    fixture.window->OpenProject(arguments.at(5).toStdString());
    if (arguments.size() > 7) {
      fixture.open.Edit([&](velmar::elements::Setup& setup) {
        velmar::calculation::ChooseSeaCavityType(
            setup, static_cast<velmar::elements::SeaCavityType>(arguments.at(7).toInt()));
      });
    }
    fixture.Run();
  }
  if (arguments.size() > 6) fixture.Find<QTabWidget>("SSTab1")->setCurrentIndex(arguments.at(6).toInt());
  fixture.window->resize(arguments.at(2).toInt(), arguments.at(3).toInt());
  fixture.window->show();
  for (int i = 0; i < 5; ++i) QApplication::processEvents();
  if (arguments.at(5) == "-") WaitForProjects(fixture);
  for (const QString& text : fixture.told) qWarning("%s", qPrintable(text));
  return fixture.window->grab().save(arguments.at(1)) ? 0 : 1;
}
