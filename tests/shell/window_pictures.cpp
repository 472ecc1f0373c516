// window_pictures OUT.png WIDTH HEIGHT light|dark PROJECT.drav|- [TAB [CAVITY]]: the main window
// with the result of a project, as a picture; CAVITY is the type of a SEA cavity.
#include <QApplication>
#include <QPalette>
#include <QPixmap>
#include <QTabWidget>
#include <clocale>

#include "calculation/layer_edits.h"
#include "tests/shell/window_fixture.h"

namespace {

QPalette DarkPalette() {
  QPalette palette(QColor(0x2b, 0x2d, 0x31), QColor(0x24, 0x26, 0x2a));
  palette.setColor(QPalette::Highlight, QColor(0x3d, 0x8b, 0xd6));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  return palette;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setStyle("Fusion");
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() < 6) return 2;
  if (arguments.at(4) == "dark") QApplication::setPalette(DarkPalette());
  velmar::shell::WindowFixture fixture;
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
