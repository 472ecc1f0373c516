#include "shell/schedule/schedule_dialog.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "shell/commands/report_commands.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

constexpr int kPatience = 120'000;

QString Example(const char* name) { return QString(EXAMPLES) + '/' + name + ".drav"; }

/// The window over the shipped data.
struct Desk {
  Desk() {
    services.tools = [this] {
      return documents::ScheduleTools{.words = fixture.services.words,
                                      .materials = fixture.services.materials,
                                      .places = {.templates = SHARE "/Templates"}};
    };
    services.choose_projects = [this](const FileQuestion&) { return chosen; };
    services.propose = [this](const QString& ending) { return folder.filePath("progetto" + ending); };
    services.written = [this](const std::filesystem::path& file) {
      written << QString::fromStdString(file.string());
    };
    dialog = std::make_unique<ScheduleDialog>(fixture.services, services);
    dialog->show();
  }

  template <typename Widget>
  Widget* Find(const char* name) const {
    auto* widget = dialog->findChild<Widget*>(name);
    if (widget == nullptr) qFatal("no control called %s", name);
    return widget;
  }
  void Click(const char* name) const { QTest::mouseClick(Find<QPushButton>(name), Qt::LeftButton); }
  QStringList Listed() const {
    QStringList names;
    auto* list = Find<QListWidget>("Abaco_Progetti");
    for (int row = 0; row < list->count(); ++row) names << list->item(row)->text();
    return names;
  }
  /// Presses the button that makes the document and waits until it is there, or not.
  void Make(const QString& name) {
    fixture.file = folder.filePath(name);
    Click("Abaco_Crea");
    QTRY_VERIFY_WITH_TIMEOUT(Find<QPushButton>("Abaco_Aggiungi")->isEnabled(), kPatience);
  }

  QTemporaryDir folder;
  WindowFixture fixture;
  ScheduleServices services;
  QStringList chosen;
  QStringList written;
  std::unique_ptr<ScheduleDialog> dialog;
};

class ScheduleDialogTest : public QObject {
  Q_OBJECT
 private slots:
  void AnEmptyListMakesNothing() {
    const Desk desk;
    QVERIFY(!desk.Find<QPushButton>("Abaco_Crea")->isEnabled());
    QCOMPARE(desk.Find<QLabel>("Abaco_Stato")->text(), QString("Aggiungere almeno un progetto."));
  }

  void ProjectsAreAddedMovedAndTakenOff() {
    Desk desk;
    desk.chosen = {Example("vetro-6"), Example("facciata"), Example("vetro-6")};
    desk.Click("Abaco_Aggiungi");
    desk.chosen = {Example("vetro-6"), Example("solaio-laterocemento")};
    desk.Click("Abaco_Aggiungi");
    QCOMPARE(desk.Listed(), QStringList({"vetro-6.drav", "facciata.drav", "solaio-laterocemento.drav"}));
    auto* list = desk.Find<QListWidget>("Abaco_Progetti");
    list->setCurrentRow(2);
    QTest::keyClick(list, Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(desk.Listed(), QStringList({"vetro-6.drav", "solaio-laterocemento.drav", "facciata.drav"}));
    desk.Click("Abaco_Giu");
    QCOMPARE(desk.Listed().last(), QString("solaio-laterocemento.drav"));
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(desk.Listed(), QStringList({"vetro-6.drav", "facciata.drav"}));
    QVERIFY(QFileInfo::exists(Example("solaio-laterocemento")));
  }

  void TheDocumentIsWrittenAndTold() {
    Desk desk;
    desk.dialog->Add({Example("vetro-6"), Example("facciata")});
    desk.Make("abaco.docx");
    QCOMPARE(desk.written, QStringList(desk.folder.filePath("abaco.docx")));
    QVERIFY(QFileInfo(desk.folder.filePath("abaco.docx")).size() > 10'000);
    QVERIFY(desk.fixture.told.isEmpty() || !desk.fixture.told.last().contains("senza risultato"));
  }

  void AProjectWithoutResultIsTold() {
    Desk desk;
    const QString broken = desk.folder.filePath("rotto.drav");
    QFile file(broken);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("x");
    file.close();
    desk.dialog->Add({Example("vetro-6"), broken});
    desk.Find<QComboBox>("Abaco_Formato")->setCurrentIndex(1);
    desk.Make("abaco.pdf");
    QVERIFY(QFileInfo::exists(desk.folder.filePath("abaco.pdf")));
    desk.dialog->Add({});
    desk.Find<QListWidget>("Abaco_Progetti")->setCurrentRow(0);
    QTest::keyClick(desk.Find<QListWidget>("Abaco_Progetti"), Qt::Key_Delete);
    desk.Make("nessuno.pdf");
    QVERIFY(!QFileInfo::exists(desk.folder.filePath("nessuno.pdf")));
    QVERIFY(desk.fixture.told.last().contains("Nessun progetto dà un risultato"));
  }

  void CancellingLeavesNoFile() {
    Desk desk;
    QStringList many;
    for (const char* name : {"facciata-nove-componenti", "sea-laterizio-doppia", "calpestio-galleggiante",
                             "sea-cartongesso-puntuale", "vetro-6", "parete-mattone-pieno"})
      many << Example(name);
    desk.dialog->Add(many);
    desk.fixture.file = desk.folder.filePath("abaco.docx");
    desk.Click("Abaco_Crea");
    // Esc is the answer that changes nothing: it cancels, and the window stays.
    QTest::keyClick(desk.dialog.get(), Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(desk.Find<QPushButton>("Abaco_Aggiungi")->isEnabled(), kPatience);
    QVERIFY(desk.dialog->isVisible());
    QVERIFY(!QFileInfo::exists(desk.folder.filePath("abaco.docx")));
    QCOMPARE(desk.Find<QLabel>("Abaco_Stato")->text(),
             QString("Interrotto: nessun documento è stato scritto."));
    QVERIFY(desk.written.isEmpty());
  }

  void TheWindowGoesWhileItWorks() {
    Desk desk;
    desk.dialog->Add({Example("facciata-nove-componenti"), Example("sea-laterizio-doppia")});
    desk.fixture.file = desk.folder.filePath("abaco.docx");
    desk.Click("Abaco_Crea");
    desk.dialog.reset();
    QVERIFY(!QFileInfo::exists(desk.folder.filePath("abaco.docx")));
  }
};

}  // namespace
}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::ScheduleDialogTest)
#include "schedule_dialog_test.moc"
