// window_pictures OUT.png WIDTH HEIGHT light|dark PROJECT.drav|- [TAB [CAVITY]]: the main window
// with the result of a project, as a picture; CAVITY is the type of a SEA cavity.
#include <QApplication>
#include <QPixmap>
#include <QTabWidget>

#include "calculation/edits/layer_edits.h"
#include "tests/shell/support/window_looks.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() < 6) return 2;
  velmar::shell::SetLooks(arguments.at(4) == "dark");
  velmar::shell::WindowFixture fixture;
  fixture.services.places.examples = EXAMPLES;
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
  for (const QString& text : fixture.told) qWarning("%s", qPrintable(text));
  return fixture.window->grab().save(arguments.at(1)) ? 0 : 1;
}
