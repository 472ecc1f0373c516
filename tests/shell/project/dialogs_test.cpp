#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "calculation/select_calculation.h"
#include "shell/commands/about_box.h"
#include "shell/project/dimension_dialog.h"
#include "shell/project/project_information_dialog.h"
#include "shell/start/loader_window.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {

class DialogsTest : public QObject {
  Q_OBJECT

 private slots:
  void dimensionsNeedTwoNumbers_data() {
    QTest::addColumn<QString>("width");
    QTest::addColumn<QString>("height");
    QTest::addColumn<bool>("taken");
    QTest::newRow("both") << "5,2"
                          << "3" << true;
    QTest::newRow("empty width") << ""
                                 << "3" << false;
    QTest::newRow("empty height") << "5"
                                  << "" << false;
    QTest::newRow("nought") << "0"
                            << "3" << false;
    QTest::newRow("unfinished") << "5"
                                << "1E" << false;
  }
  void dimensionsNeedTwoNumbers() {
    QFETCH(const QString, width);
    QFETCH(const QString, height);
    QFETCH(const bool, taken);
    WindowFixture fixture;
    fixture.Choose("TIPO_PARETE_SINGOLA_0");
    const elements::Setup before = fixture.open.Setup();
    DimensionDialog dialog(fixture.open, fixture.services.words);
    dialog.show();
    const auto type = [&dialog](const char* name, const QString& keys) {
      auto* field = dialog.findChild<QLineEdit*>(name);
      field->selectAll();
      QTest::keyClick(field, Qt::Key_Backspace);
      QTest::keyClicks(field, keys);
    };
    type("Text1", width);
    type("Text2", height);
    dialog.findChild<QPushButton*>("Command1")->click();
    QCOMPARE(dialog.isVisible(), !taken);
    if (taken) {
      QCOMPARE(fixture.open.Setup().width_text, width.toStdString());
      QCOMPARE(fixture.open.Setup().height_text, height.toStdString());
    } else {
      QVERIFY(fixture.open.Setup() == before);
    }
    QVERIFY(!fixture.open.IsSaved());
  }

  void theDimensionsOfAFacadeAreItsArea() {
    WindowFixture fixture;
    fixture.Choose("cal_facciata");
    DimensionDialog dialog(fixture.open, fixture.services.words);
    const auto type = [&dialog](const char* name, const QString& keys) {
      auto* field = dialog.findChild<QLineEdit*>(name);
      field->selectAll();
      QTest::keyClicks(field, keys);
    };
    type("Text1", "2,5");
    type("Text2", "3");
    dialog.findChild<QPushButton*>("Command1")->click();
    QCOMPARE(fixture.Find<QLineEdit>("Text7")->text(), QString("7,5"));
  }

  void theDimensionsOfASeaWallHaveAFrameOfTheirOwn() {
    WindowFixture fixture;
    fixture.Choose("TIPO_PARETE_DOPPIA_4");
    DimensionDialog dialog(fixture.open, fixture.services.words);
    QCOMPARE(dialog.findChild<QGroupBox*>("Frame1")->title(), QString("Dimensioni della parete (SEA)"));
  }

  void theInformationIsTakenOverByOkAlone() {
    WindowFixture fixture;
    fixture.Choose("TIPO_PARETE_SINGOLA_0");
    fixture.Run();
    for (const bool confirmed : {false, true}) {
      ProjectInformationDialog dialog(fixture.open, fixture.services.words);
      QTest::keyClicks(dialog.findChild<QLineEdit*>("Text1_1"), "Rossi");
      auto* notes = dialog.findChild<QPlainTextEdit*>("Text1_5");
      QTest::keyClicks(notes, "una");
      QTest::keyClick(notes, Qt::Key_Return);
      QTest::keyClicks(notes, "nota");
      dialog.findChild<QPushButton*>(confirmed ? "Command1" : "Command2")->click();
      QCOMPARE(fixture.open.Setup().information[1].value, std::string(confirmed ? "Rossi" : ""));
    }
    QCOMPARE(fixture.open.Setup().information[5].value, std::string("una\nnota"));
    QVERIFY(fixture.open.Result());
  }

  void theAboutBoxTellsTheVersion() {
    WindowFixture fixture;
    const AboutBox box(fixture.services.words, "2.0.1", {});
    QCOMPARE(box.findChild<QLabel*>("LabelVersione")->text(), QString("VELMARpro 2.0.1"));
    QVERIFY(box.findChild<QLabel*>("LbWebSite") == nullptr);
  }

  void theLoaderTellsWhatItLoads() {
    WindowFixture fixture;
    LoaderWindow loader(fixture.services.words, "2.0.1");
    loader.ShowProgress(MessageRow{133}, 42, 2, 3);
    QCOMPARE(loader.findChild<QLabel*>("LabelLoader")->text(),
             QString("Caricamento di 42 materiali fibrosi"));
    QCOMPARE(loader.findChild<QLabel*>("LabelVersione")->text(), QString("VELMARpro versione 2.0.1"));
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::DialogsTest)
#include "dialogs_test.moc"
