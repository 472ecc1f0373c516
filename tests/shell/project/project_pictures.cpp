// project_pictures FOLDER light|dark: the windows around a project, as pictures.
#include <QAction>
#include <QDateTime>
#include <QFileDialog>
#include <QLibraryInfo>
#include <QMenu>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTranslator>

#include "shell/project/dimension_dialog.h"
#include "shell/project/lost_work_dialog.h"
#include "shell/project/project_information_dialog.h"
#include "tests/shell/support/window_looks.h"

namespace {

using namespace velmar::shell;

void Save(QWidget& widget, const QString& file) {
  widget.show();
  for (int i = 0; i < 5; ++i) QApplication::processEvents();
  widget.grab().save(file);
}

std::vector<LostWork> Works() {
  const QDateTime time(QDate(2026, 11, 22), QTime(9, 5));
  std::vector<LostWork> works(3);
  works[0].project.path = "/home/studio/Documenti/Lavori/2026-117 Condominio Rossi/parete nord.drav";
  works[1].project.path = "/home/studio/Documenti/solaio tipo.drav";
  for (std::size_t i = 0; i < works.size(); ++i) works[i].changed = time.addDays(-static_cast<int>(i));
  return works;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() < 3) return 2;
  SetLooks(arguments.at(2) == "dark");
  QTranslator toolkit;
  if (toolkit.load("qtbase_it", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&toolkit);
  const QString folder = arguments.at(1) + '/';
  WindowFixture fixture;
  const auto& words = fixture.services.words;
  LostWorkDialog lost(Works(), words);
  Save(lost, folder + "lavoro-non-salvato.png");
  fixture.window->OpenProject(EXAMPLES "/parete-forato-intonacata.drav");
  ProjectInformationDialog information(fixture.open, words);
  Save(information, folder + "informazioni.png");
  DimensionDialog dimensions(fixture.open, words);
  Save(dimensions, folder + "dimensioni.png");
  QFileDialog files(nullptr, "Salva progetto", EXAMPLES, "VELMARpro files (*.drav *.DRAV)");
  files.setAcceptMode(QFileDialog::AcceptSave);
  files.setOption(QFileDialog::DontUseNativeDialog);
  Save(files, folder + "file.png");
  ScreenBoxes(words).tell_written("Il documento è stato salvato.",
                                  "/home/studio/Documenti/Lavori/2026-117 Condominio Rossi/parete nord.docx");
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* box = qobject_cast<QMessageBox*>(window);
    if (box == nullptr || !box->isVisible()) continue;
    Save(*box, folder + "scritto.png");
    box->close();
  }
  const QTemporaryDir saved;
  fixture.file = saved.filePath("parete nord.drav");
  fixture.Find<QAction>("salva_con_nome")->trigger();
  fixture.Run();
  fixture.window->resize(1366, 768);
  Save(*fixture.window, folder + "finestra.png");
  fixture.Find<QMenu>("File")->popup({});
  Save(*fixture.Find<QMenu>("File"), folder + "menu-file.png");
  return 0;
}
