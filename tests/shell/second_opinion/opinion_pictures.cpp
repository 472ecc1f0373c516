// opinion_pictures OUT.png WIDTH HEIGHT light|dark PROJECT.drav [closed | why MODEL | MODEL...]: the main
// window with the result of a project and the second opinion opened, the curves of the named models ticked;
// "closed" leaves it closed, "why" shows the route of a model.
#include <QCheckBox>
#include <QPixmap>
#include <QTest>
#include <QToolButton>

#include "tests/shell/support/window_looks.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QStringList arguments = QApplication::arguments();
  if (arguments.size() < 6) return 2;
  velmar::shell::SetLooks(arguments.at(4) == "dark");
  velmar::shell::WindowFixture fixture;
  fixture.window->OpenProject(arguments.at(5).toStdString());
  fixture.window->resize(arguments.at(2).toInt(), arguments.at(3).toInt());
  fixture.window->show();
  fixture.Run();
  const auto* panel = fixture.Find<QWidget>("FrameSecondoParere");
  if (!QTest::qWaitFor([panel] { return panel->isVisible(); })) qWarning("no second opinion");
  QWidget* shown = fixture.window.get();
  const QStringList wanted = arguments.mid(6);
  if (!wanted.contains("closed")) {
    fixture.Find<QToolButton>("PulsanteSecondoParere")->click();
    if (wanted.value(0) == "why") {
      fixture.Find<QToolButton>("Perche " + wanted.value(1))->click();
      shown = fixture.Find<QWidget>("FinestraPerche");
    } else {
      for (const QString& model : wanted) fixture.Find<QCheckBox>("Curva " + model)->click();
    }
  }
  QTest::qWait(200);
  for (const QString& text : fixture.told) qWarning("%s", qPrintable(text));
  return shown->grab().save(arguments.at(1)) ? 0 : 1;
}
