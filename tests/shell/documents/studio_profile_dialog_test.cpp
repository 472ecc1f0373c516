#include "shell/documents/studio_profile_dialog.h"

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "shell/documents/language_menu.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

using elements::StudioProfile;

/// The dialog over a data folder of its own.
struct Studio {
  Studio() {
    documents.places.data_folder = folder.path().toStdString();
    speech = fixture.services;
    speech.boxes.choose_file_to_open = [this](const FileQuestion&) { return file; };
    speech.boxes.tell = [this](Tone, const QString& text) { told << text; };
    QImage image(80, 30, QImage::Format_RGB32);
    image.fill(Qt::darkBlue);
    image.save(folder.filePath("logo.png"));
  }

  storage::StudioProfileStore Store() const {
    return storage::StudioProfileStore(folder.path().toStdString());
  }

  void WriteFile(const QString& name, const QByteArray& bytes) const {
    QFile out(folder.filePath(name));
    QVERIFY(out.open(QIODevice::WriteOnly));
    out.write(bytes);
  }

  QTemporaryDir folder;
  WindowFixture fixture;
  Speech speech;
  DocumentServices documents;
  QString file;
  QStringList told;
};

template <typename Widget>
Widget* In(const QDialog& dialog, const char* name) {
  return dialog.findChild<Widget*>(name);
}

}  // namespace

class StudioProfileDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void whatIsTypedIsSaved() {
    Studio studio;
    studio.file = studio.folder.filePath("logo.png");
    StudioProfileDialog dialog(studio.documents, studio.speech);
    dialog.show();
    QTest::keyClicks(In<QLineEdit>(dialog, "name"), "Studio Neri");
    QTest::keyClicks(In<QLineEdit>(dialog, "signer"), "ing. Neri");
    In<QPlainTextEdit>(dialog, "address")->setPlainText("via Roma 1\nBologna");
    In<QComboBox>(dialog, "language")->setCurrentIndex(3);
    In<QPushButton>(dialog, "logo_scegli")->click();
    QVERIFY(!In<QLabel>(dialog, "logo_immagine")->pixmap().isNull());
    const QImage preview = In<QLabel>(dialog, "anteprima")->pixmap().toImage();
    QVERIFY(preview != QImage(preview.size(), preview.format()));
    In<QPushButton>(dialog, "salva")->click();
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
    const StudioProfile saved = studio.Store().Read();
    QCOMPARE(saved.name, std::string("Studio Neri"));
    QCOMPARE(saved.address, std::string("via Roma 1\nBologna"));
    QVERIFY(saved.language == elements::DocumentLanguage::kBoth);
    QVERIFY(!studio.Store().Picture(saved.logo).empty());
    const StudioProfileDialog again(studio.documents, studio.speech);
    QCOMPARE(In<QLineEdit>(again, "signer")->text(), QString("ing. Neri"));
  }

  void tabGoesThroughTheFieldsAsOneReads() {
    Studio studio;
    StudioProfileDialog dialog(studio.documents, studio.speech);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QStringList order;
    for (int i = 0; i < 8; ++i) {
      order << dialog.focusWidget()->objectName();
      QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(order, (QStringList{"name", "signer", "number", "address", "footer", "language", "logo_scegli",
                                 "firma_scegli"}));
  }

  void escapeLeavesTheProfile() {
    Studio studio;
    studio.Store().Write({.name = "Prima"});
    StudioProfileDialog dialog(studio.documents, studio.speech);
    dialog.show();
    QTest::keyClicks(In<QLineEdit>(dialog, "name"), " e dopo");
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(studio.Store().Read().name, std::string("Prima"));
  }

  void aTextThatIsTooLongIsToldBesideItAndNotSaved() {
    Studio studio;
    StudioProfileDialog dialog(studio.documents, studio.speech);
    dialog.show();
    In<QLineEdit>(dialog, "name")->setText(QString(121, 'a'));
    QVERIFY(In<QLabel>(dialog, "name_nota")->isVisible());
    QVERIFY(!In<QPushButton>(dialog, "salva")->isEnabled());
    In<QLineEdit>(dialog, "name")->setText(QString(120, 'a'));
    QVERIFY(!In<QLabel>(dialog, "name_nota")->isVisible());
    QVERIFY(In<QPushButton>(dialog, "salva")->isEnabled());
  }

  void aPictureThatCannotBeReadIsToldAndTheOldOneStays() {
    Studio studio;
    studio.file = studio.folder.filePath("logo.png");
    StudioProfileDialog dialog(studio.documents, studio.speech);
    dialog.show();
    In<QPushButton>(dialog, "logo_scegli")->click();
    studio.WriteFile("rotto.png", "\x89PNG\r\n\x1a\n broken");
    studio.file = studio.folder.filePath("rotto.png");
    In<QPushButton>(dialog, "logo_scegli")->click();
    QVERIFY(In<QLabel>(dialog, "logo_nota")->isVisible());
    QVERIFY(!In<QLabel>(dialog, "logo_immagine")->pixmap().isNull());
  }

  void aDamagedProfileIsToldAndKeptWhenANewOneIsSaved() {
    Studio studio;
    studio.Store().Write({.name = "Prima"});
    studio.WriteFile("Studio/profilo.txt", "damaged");
    StudioProfileDialog dialog(studio.documents, studio.speech);
    dialog.show();
    QVERIFY(In<QLabel>(dialog, "nota")->isVisible());
    QTest::keyClicks(In<QLineEdit>(dialog, "name"), "Nuovo");
    In<QPushButton>(dialog, "salva")->click();
    QCOMPARE(studio.Store().Read().name, std::string("Nuovo"));
    QCOMPARE(studio.told.size(), qsizetype{1});
    QVERIFY(studio.told.front().contains("danneggiato"));
  }

  void theMenuChoosesTheLanguageOfThisRun() {
    Studio studio;
    LanguageMenu menu(studio.documents, studio.speech.words, nullptr);
    QVERIFY(menu.findChild<QAction*>("lingua_del_profilo")->isChecked());
    menu.findChild<QAction*>("lingua_en")->trigger();
    QVERIFY(studio.documents.language == elements::DocumentLanguage::kEnglish);
    menu.findChild<QAction*>("lingua_del_profilo")->trigger();
    QVERIFY(!studio.documents.language);
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::StudioProfileDialogTest)
#include "studio_profile_dialog_test.moc"
