#include "shell/start/start_up.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include "shell/start/desktop_application.h"
#include "storage/configuration/configuration.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::shell {
namespace {

namespace fs = std::filesystem;

/// The real start, from the data folder of an empty home to the open window, in which a single wall is run.
/// Boxes are answered as they come.
struct Start {
  Start() {
    qputenv("HOME", home.path().toUtf8());
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"}) qputenv(name, home.path().toUtf8());
  }
  ~Start() {
    for (const char* name : {storage::kConfigurationFile, "velmar-access-reader"})
      fs::remove(Program() / name);
  }
  Start(const Start&) = delete;
  Start& operator=(const Start&) = delete;

  static fs::path Program() { return QCoreApplication::applicationDirPath().toStdString(); }
  fs::path Data() const { return fs::path(home.path().toStdString()) / "Documents" / "VELMARpro"; }
  fs::path Materials() const { return Data() / storage::kMaterialDatabase; }
  void CopyShippedData() const {
    fs::create_directories(Data().parent_path());
    fs::copy(SHARE, Data(), fs::copy_options::recursive);
  }

  void Run() {
    QTimer driver;
    QObject::connect(&driver, &QTimer::timeout, [this] { Drive(); });
    driver.start(10);
    code = RunDesktop(static_cast<DesktopApplication&>(*qApp));
  }

  QStringList boxes;    ///< what was asked and told, in order
  QStringList loading;  ///< what the loader said
  int materials = -1;   ///< in the first list of the window
  int boxes_of_start = 0;
  bool ran = false;      ///< a single wall of the first material
  QString context_menu;  ///< of a field: its first entry
  int code = -1;
  bool yes = false;  ///< the answer to every question
  QTemporaryDir home;

 private:
  void Drive() {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) return Answer(*box);
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
      if (!widget->isVisible()) continue;
      if (widget->objectName() == "FormLoaderIniziale")
        Note(widget->findChild<QLabel*>("LabelLoader")->text());
    }
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() != "Form1" || !widget->isVisible() || materials >= 0) continue;
      materials = widget->findChild<QComboBox*>("Combo3_0")->count();
      boxes_of_start = static_cast<int>(boxes.size());
      // Not from here: a timer does not go on while it is answered, and a box may come.
      QTimer::singleShot(0, widget, [this, widget] { RunAndClose(*widget); });
      return;
    }
  }

  void RunAndClose(QWidget& window) {
    for (const char* command : {"TIPO_PARETE_SINGOLA_0", "esegui_calcolo"})
      window.findChild<QAction*>(command)->trigger();
    ran = window.findChild<QAction*>("tab_risultati")->isEnabled();
    const std::unique_ptr<QMenu> menu(window.findChild<QLineEdit*>("Text5_0")->createStandardContextMenu());
    context_menu = menu->actions().first()->text().remove('&');
    window.close();
  }

  void Note(const QString& text) {
    if (!text.isEmpty() && !loading.contains(text)) loading += text;
  }

  void Answer(QMessageBox& box) {
    QCOMPARE(box.windowTitle(), QString("VELMARpro"));
    boxes += box.text();
    const QList<QAbstractButton*> buttons = box.buttons();
    for (QAbstractButton* button : buttons) {
      if (box.buttonRole(button) == (yes ? QMessageBox::YesRole : QMessageBox::NoRole))
        return button->click();
    }
    buttons.front()->click();
  }
};

/// The files of `folder` whose bytes are `bytes`.
QStringList Holders(const fs::path& folder, const std::string& bytes) {
  QStringList holders;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    if (entry.is_regular_file() && storage::ReadFile(entry.path()) == bytes)
      holders += QString::fromStdString(entry.path().filename().string());
  }
  return holders;
}

}  // namespace

class StartUpTest : public QObject {
  Q_OBJECT

 private slots:
  void anEmptyHomeGetsTheShippedData() {
    Start start;
    start.Run();
    QCOMPARE(start.boxes, QStringList());
    QVERIFY(start.ran);
    QVERIFY2(start.context_menu.startsWith("Annulla"), qPrintable(start.context_menu));
    QCOMPARE(start.code, 0);
    QVERIFY(start.materials >= 120);
    QVERIFY(fs::exists(start.Materials()));
  }

  void aDataFolderThatCannotBeMadeIsToldAndTheShippedDataServe() {
    Start start;
    storage::WriteFile(Start::Program() / storage::kConfigurationFile,
                       "[Configurazione]\nCartellaDati=/proc/none/VELMARpro\n");
    start.Run();
    QCOMPARE(start.boxes.size(), 1);
    QVERIFY(start.boxes[0].contains("/proc/none/VELMARpro"));
    QVERIFY(start.materials >= 120);
  }

  void aWrongLanguageEndsTheStartInBothLanguages() {
    Start start;
    storage::WriteFile(Start::Program() / storage::kConfigurationFile, "[Configurazione]\nLingua=Klingon\n");
    start.Run();
    QCOMPARE(start.boxes.size(), 1);
    QVERIFY(start.boxes[0].contains("non contiene la lingua"));
    QVERIFY(start.boxes[0].contains("does not hold the language"));
    QVERIFY(start.boxes[0].contains("Klingon"));
    QCOMPARE(start.code, 1);
  }

  void englishIsTakenWithoutRegardToCase() {
    Start start;
    start.CopyShippedData();
    fs::remove(start.Data() / storage::kMessageDatabase);
    storage::WriteFile(Start::Program() / storage::kConfigurationFile, "[Configurazione]\nLingua=english\n");
    start.Run();
    QCOMPARE(start.boxes.size(), 1);
    QVERIFY2(start.boxes[0].startsWith("The file was missing"), qPrintable(start.boxes[0]));
    QVERIFY2(start.context_menu.startsWith("Undo"), qPrintable(start.context_menu));
    QVERIFY(fs::exists(start.Data() / storage::kMessageDatabase));
    QVERIFY(start.materials >= 120);
  }

  void aDamagedMaterialDatabaseIsSetAside() {
    Start start;
    start.CopyShippedData();
    storage::WriteFile(start.Materials(), "damaged");
    start.Run();
    QCOMPARE(start.boxes.size(), 1);
    QVERIFY(start.boxes[0].contains("Database.mdb.danneggiato"));
    QVERIFY(start.materials >= 120);
    QCOMPARE(Holders(start.Materials().parent_path(), "damaged"), QStringList("Database.mdb.danneggiato"));
  }

  void anAccessMaterialDatabaseIsConverted_data() {
    QTest::addColumn<bool>("yes");
    QTest::addColumn<int>("materials");
    QTest::newRow("yes") << true << 4;
    QTest::newRow("no") << false << 0;
  }

  void anAccessMaterialDatabaseIsConverted() {
    QFETCH(const bool, yes);
    QFETCH(const int, materials);
    const QByteArray fixtures = qgetenv("VELMAR_ACCESS_FIXTURES");
    if (fixtures.isEmpty()) QSKIP("left out: VELMAR_ACCESS_FIXTURES names no folder");
    const std::string bytes =
        storage::ReadFile(fs::path(fixtures.toStdString()) / "jet4-schema-generated.mdb");
    Start start;
    start.CopyShippedData();
    storage::WriteFile(start.Materials(), bytes);
    // Long enough that the loader has to say what is going on.
    const fs::path reader = Start::Program() / "velmar-access-reader";
    storage::WriteFile(reader, "#!/bin/sh\nsleep 0.8\nexec " VELMAR_ACCESS_READER " \"$@\"\n");
    fs::permissions(reader, fs::perms::owner_all);
    start.yes = yes;
    start.Run();
    QVERIFY2(start.boxes_of_start == 2, qPrintable(start.boxes.join("\n--\n")));
    QVERIFY(start.boxes[0].contains("Convertirlo"));
    QVERIFY2(start.boxes[1].contains(yes ? "Modulo_A1: 4" : "liste dei materiali sono vuote"),
             qPrintable(start.boxes[1]));
    QCOMPARE(Holders(start.Materials().parent_path(), bytes),
             QStringList(yes ? "Database.mdb.originale" : "Database.mdb"));
    QCOMPARE(start.loading.filter("Conversione in corso").size(), yes ? 1 : 0);
    QCOMPARE(start.materials, materials);
    QCOMPARE(start.ran, yes);
    QVERIFY2(start.boxes.size() == (yes ? 2 : 4), qPrintable(start.boxes.join("\n--\n")));
    if (!yes) {
      // The usual layers of a new element are looked up in it, and the run then has no material.
      QVERIFY2(start.boxes[2].contains("Convertire prima il database"), qPrintable(start.boxes[2]));
      QVERIFY2(start.boxes[3].contains("Manca il materiale dello strato 1"), qPrintable(start.boxes[3]));
    }
    QCOMPARE(start.code, 0);
  }
};

}  // namespace velmar::shell

int main(int argc, char** argv) {
  velmar::shell::DesktopApplication application(argc, argv);
  velmar::shell::StartUpTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "start_up_test.moc"
