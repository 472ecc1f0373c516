#include <QApplication>
#include <QDesktopServices>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <QUrl>

#include "calculation/edits/select_calculation.h"
#include "shell/commands/about_box.h"
#include "shell/project/dimension_dialog.h"
#include "shell/project/lost_work_dialog.h"
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

  void theInformationIsCaptionedInTheLanguageOfTheWindow() {
    WindowFixture fixture;
    fixture.open.EditKeepingResult([](elements::Setup& setup) {
      setup.information[0].caption = "Progetto";
      setup.information[1].caption = "Customer";
      setup.information[2].caption.clear();
      setup.information[7].caption = "Cantiere";
    });
    const ProjectInformationDialog dialog(fixture.open, fixture.services.words);
    const auto caption = [&dialog](const char* name) {
      return dialog.findChild<QLineEdit*>(name)->accessibleName();
    };
    QCOMPARE(caption("Text1_0"), QString("Progetto"));
    QCOMPARE(caption("Text1_1"), QString("Cliente (Customer)"));
    QCOMPARE(caption("Text1_2"), QString("Progetto n."));
    QCOMPARE(caption("Text1_7"), QString("Cantiere"));
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

  void lostWorkIsNamedAndEscIsLater() {
    WindowFixture fixture;
    const QDateTime time(QDate(2026, 11, 22), QTime(9, 5));
    std::vector<LostWork> works(2);
    works[0].project.path = "/lavori/Rossi/parete nord.drav";
    works[0].changed = time;
    works[1].changed = time.addDays(-1);
    const auto answered = [&](const std::function<void(LostWorkDialog&)>& hand) {
      LostWorkDialog dialog(works, fixture.services.words);
      dialog.show();
      hand(dialog);
      if (dialog.isVisible()) qFatal("still open");
      return dialog.Answer();
    };
    const auto press = [](const char* button) {
      return [button](LostWorkDialog& dialog) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
      };
    };
    const LostWorkAnswer esc = answered([](LostWorkDialog& dialog) {
      auto* list = dialog.findChild<QTreeWidget*>("Lavori");
      const auto row = [list](int place) {
        const QTreeWidgetItem* item = list->topLevelItem(place);
        return QStringList({item->text(0), item->text(1), item->text(2)});
      };
      QCOMPARE(list->topLevelItemCount(), 2);
      QCOMPARE(row(0), QStringList({"parete nord", "22/11/2026 09:05", "/lavori/Rossi"}));
      QCOMPARE(row(1), QStringList({"Nuovo", "21/11/2026 09:05", "mai salvato"}));
      QTest::keyClick(list, Qt::Key_Escape);
    });
    QVERIFY(esc.choice == LostWorkChoice::kLater);
    QVERIFY(answered(press("Dopo")).choice == LostWorkChoice::kLater);
    QVERIFY(answered([](LostWorkDialog& dialog) { dialog.close(); }).choice == LostWorkChoice::kLater);
    const LostWorkAnswer first = answered(press("Recupera"));
    QVERIFY(first.choice == LostWorkChoice::kRecover);
    QCOMPARE(first.which, 0U);
    const LostWorkAnswer second = answered([&](LostWorkDialog& dialog) {
      QTest::keyClick(dialog.findChild<QTreeWidget*>("Lavori"), Qt::Key_Down);
      press("Elimina")(dialog);
    });
    QVERIFY(second.choice == LostWorkChoice::kDelete);
    QCOMPARE(second.which, 1U);
    // Enter is the answer that brings the work back.
    const LostWorkAnswer enter = answered([](LostWorkDialog& dialog) {
      QTest::keyClick(dialog.findChild<QTreeWidget*>("Lavori"), Qt::Key_Return);
    });
    QVERIFY(enter.choice == LostWorkChoice::kRecover);
  }

  void theBoxOfAWrittenFileOpensItOrItsFolder_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("opened");
    QTest::newRow("file") << "Apri"
                          << "/tmp/relazioni/parete è.docx";
    QTest::newRow("folder") << "Cartella"
                            << "/tmp/relazioni";
    QTest::newRow("neither") << "OK"
                             << "";
  }
  void theBoxOfAWrittenFileOpensItOrItsFolder() {
    QFETCH(const QString, button);
    QFETCH(const QString, opened);
    WindowFixture fixture;
    const Boxes boxes = ScreenBoxes(fixture.services.words);
    QDesktopServices::setUrlHandler("file", this, "TakeAddress");
    address_.clear();
    boxes.tell_written("Fatto.", "/tmp/relazioni/parete è.docx");
    QMessageBox* box = BoxOnTheScreen();
    QVERIFY(box != nullptr);
    QCOMPARE(box->text(), QString("Fatto.\n/tmp/relazioni/parete è.docx"));
    for (QAbstractButton* one : box->buttons()) {
      if (one->text() != button) continue;
      one->click();
      break;
    }
    QDesktopServices::unsetUrlHandler("file");
    QCOMPARE(address_.toLocalFile(), opened);
    QTRY_VERIFY(BoxOnTheScreen() == nullptr);
  }

  void theBoxOfAWrittenFileNeedsNoAnswer() {
    WindowFixture fixture;
    fixture.window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
    ScreenBoxes(fixture.services.words).tell_written("Fatto.", "/tmp/parete.docx");
    QVERIFY(BoxOnTheScreen() != nullptr);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QTRY_VERIFY(BoxOnTheScreen()->isActiveWindow());
    fixture.window->activateWindow();
    QTRY_VERIFY(BoxOnTheScreen() == nullptr);
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

 public slots:
  void TakeAddress(const QUrl& address) { address_ = address; }

 private:
  static QMessageBox* BoxOnTheScreen() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* box = qobject_cast<QMessageBox*>(window);
      if (box != nullptr && box->isVisible()) return box;
    }
    return nullptr;
  }

  QUrl address_;
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::DialogsTest)
#include "dialogs_test.moc"
