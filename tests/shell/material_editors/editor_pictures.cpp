// editor_pictures OUT.png light|dark structural|fibrous|resilient DATABASE.mdb [NAME]: the editor of a
// material as a picture, filled from the row called NAME.
#include <QApplication>
#include <QPalette>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include "shell/material_editors/edit_material.h"
#include "tests/presentation/drawing/catalogue_words.h"

namespace {

using velmar::elements::MaterialFamily;

QPalette DarkPalette() {
  QPalette palette(QColor(0x2b, 0x2d, 0x31), QColor(0x24, 0x26, 0x2a));
  palette.setColor(QPalette::Highlight, QColor(0x3d, 0x8b, 0xd6));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  return palette;
}

MaterialFamily FamilyCalled(const QString& name) {
  if (name == "fibrous") return MaterialFamily::kFibrous;
  return name == "resilient" ? MaterialFamily::kResilient : MaterialFamily::kStructural;
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() < 5) return 2;
  if (arguments.at(2) == "dark") QApplication::setPalette(DarkPalette());
  velmar::shell::WindowTools tools;
  tools.words = velmar::presentation::CatalogueWords();
  tools.boxes.ask = [](const QString&) { return true; };
  tools.boxes.tell = [](velmar::shell::Tone, const QString& text) { qWarning("%s", qPrintable(text)); };
  bool saved = false;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    QWidget* window = QApplication::activeModalWidget();
    if (window == nullptr) return;
    saved = window->grab().save(arguments.at(1));
    window->close();
  });
  timer.start(200);
  velmar::storage::MaterialStore store(arguments.at(4).toStdString());
  velmar::material_editors::EditMaterial(nullptr, tools, store, {"tutti", "non specificata"},
                                         FamilyCalled(arguments.at(3)), arguments.value(5).toStdString());
  return saved ? 0 : 1;
}
