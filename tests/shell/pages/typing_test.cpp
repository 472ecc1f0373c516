#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include "shell/fields/field_note.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {

/// What is typed, pasted and clicked in a field is what is calculated.
class TypingTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    fixture_ = std::make_unique<WindowFixture>();
    fixture_->window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture_->window.get()));
  }
  void cleanup() { fixture_.reset(); }

  void aThicknessMayBeginWithNought_data() {
    QTest::addColumn<int>("key");
    QTest::newRow("Enter") << static_cast<int>(Qt::Key_Return);
    QTest::newRow("Tab") << static_cast<int>(Qt::Key_Tab);
    QTest::newRow("F5") << static_cast<int>(Qt::Key_F5);
  }
  void aThicknessMayBeginWithNought() {
    QFETCH(const int, key);
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    fixture_->Type("Text5_0", "0,5");
    QCOMPARE(Text("Text5_0"), QString("0,5"));
    QCOMPARE(Setup().leaf1.rows[0].slot.thickness_mm, 0.5);
    fixture_->Type("Text5_0", "0");
    QCOMPARE(Text("Text5_0"), QString("0"));
    QTest::keyClick(Field("Text5_0"), static_cast<Qt::Key>(key));
    QCOMPARE(Text("Text5_0"), QString("10"));
    QCOMPARE(Setup().leaf1.rows[0].slot.thickness_mm, 10.0);
    QVERIFY(FieldNote::TextAt(Field("Text5_0")).contains("superare 0"));
  }

  void aFieldThatIsLeftByClosingIsLeftInOrder() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    fixture_->Type("Text5_0", "0");
    fixture_->window.reset();
    QCOMPARE(Setup().leaf1.rows[0].thickness_text, std::string("10"));
  }

  void aBaseMassKeepsItsComma() {
    fixture_->Choose("mnuCalcoloControplaccaggiScelta_0");
    fixture_->Type("TextMassaBase", "192,5");
    QCOMPARE(Text("TextMassaBase"), QString("192,5"));
    QCOMPARE(Setup().base.mass_kg_m2, 192.5F);
    fixture_->Type("TextSpessoreBase", "0,50");
    QCOMPARE(Text("TextSpessoreBase"), QString("0,50"));
    QCOMPARE(Setup().base.thickness_mm, 0.5);
  }

  void aRowThatIsShownIsCalculated() {
    fixture_->Choose("TIPO_PARETE_DOPPIA_0");
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(2);
    fixture_->Find<QRadioButton>("Option2_2")->click();
    auto* count = fixture_->Find<QComboBox>("Combo18");
    count->setFocus();
    count->lineEdit()->selectAll();
    QTest::keyClicks(count, "8");
    QCOMPARE(Setup().leaf2.count, 7);
    for (std::size_t i = 0; i < 7; ++i) {
      const auto& row = Setup().leaf2.rows.at(i);
      QCOMPARE(row.slot.name, row.listed);
      QVERIFY2(row.slot.thickness_mm > 0.0, std::to_string(i).c_str());
    }
  }

  void aTickedDampingLayerIsCalculated() {
    fixture_->Choose("TIPO_PARETE_DOPPIA_4");
    fixture_->Find<QCheckBox>("ChecklMatSmorzanteSEA1_1")->click();
    const auto& damping = Setup().sea_leaf1.damping.at(1);
    QVERIFY(damping.ticked);
    QCOMPARE(damping.row.slot.name, damping.row.listed);
    QVERIFY(damping.row.slot.density_kg_m3 > 0.0);
  }

  void aRowWhoseMaterialIsGoneIsEmpty() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    fixture_->services.materials.structural = [](std::string_view) {
      return std::optional<elements::StructuralRecord>();
    };
    fixture_->window.reset();
    fixture_->window = std::make_unique<MainWindow>(fixture_->services);
    fixture_->window->show();
    auto* count = fixture_->Find<QComboBox>("Combo1");
    count->setFocus();
    count->lineEdit()->selectAll();
    QTest::keyClicks(count, "2");
    QCOMPARE(fixture_->Find<QComboBox>("Combo3_1")->currentText(), QString());
    QVERIFY(!fixture_->Find<QComboBox>("Combo3_1")->placeholderText().isEmpty());
    QCOMPARE(Setup().leaf1.rows[1].listed, std::string());
    fixture_->Run();
    QVERIFY(!fixture_->open.Result());
    QCOMPARE(fixture_->told, QStringList("Manca il materiale dello strato 2."));
    QCOMPARE(FieldNote::TextAt(fixture_->Find<QComboBox>("Combo3_1")),
             QString("Manca il materiale dello strato 2."));
    QCOMPARE(fixture_->window->focusWidget(), fixture_->Find<QWidget>("Combo3_1"));
  }

  void aTypedMaterialIsCalculatedAfterEscapeAndRun() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    auto* box = fixture_->Find<QComboBox>("Combo3_0");
    const QString wanted = box->itemText(7);
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box->lineEdit(), wanted);
    if (QWidget* matches = QApplication::activePopupWidget()) matches->close();
    fixture_->Run();
    QCOMPARE(box->currentText(), wanted);
    QCOMPARE(QString::fromStdString(Setup().leaf1.rows[0].slot.name), wanted);
    QVERIFY(fixture_->open.Result());
  }

  void escapeBringsBackTheMaterialThatCounts() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    auto* box = fixture_->Find<QComboBox>("Combo3_0");
    const QString before = box->currentText();
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box->lineEdit(), "xyz");
    QTest::keyClick(box, Qt::Key_Escape);
    QCOMPARE(box->currentText(), before);
  }

  void enterTakesTheBestHit() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    auto* box = fixture_->Find<QComboBox>("Combo3_0");
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box->lineEdit(), "calce e cem");
    if (QWidget* matches = QApplication::activePopupWidget()) matches->close();
    QTest::keyClick(box, Qt::Key_Return);
    QVERIFY2(box->currentText().contains("calce e cem"), qPrintable(box->currentText()));
    QCOMPARE(QString::fromStdString(Setup().leaf1.rows[0].slot.name), box->currentText());
  }

  void aTextWithoutAHitKeepsTheFocus() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    auto* box = fixture_->Find<QComboBox>("Combo3_0");
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box->lineEdit(), "criptonite");
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab}) {
      QTest::keyClick(box, key);
      QVERIFY(box->hasFocus());
      QCOMPARE(box->currentText(), QString("criptonite"));
      QVERIFY(!FieldNote::TextAt(box).isEmpty());
    }
  }

  void aKeywordIsFoundByAPartOfIt() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    auto* box = fixture_->Find<QComboBox>("Combo7_0");
    TypeInto(box, "etrat");
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(box->currentText(), QString("vetrate"));
    QVERIFY(fixture_->Find<QComboBox>("Combo3_0")->findText("Vetro float") >= 0);
    QVERIFY(fixture_->Find<QComboBox>("Combo3_0")->findText("Mattone pieno") < 0);
    TypeInto(box, "criptonite");
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab}) {
      QTest::keyClick(box, key);
      QVERIFY(box->hasFocus());
      QVERIFY(FieldNote::TextAt(box).contains("Nessuna parola chiave"));
    }
    QTest::keyClick(box, Qt::Key_Escape);
    QCOMPARE(box->currentText(), QString("vetrate"));
  }

  void aTableOfLayersIsPastedAsOneStep() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    Paste(
        "Combo3_0",
        "Materiale\tmm\tstrati\r\nIntonaco di calce e cemento\t20 mm\t1\r\nForati in laterizio 12 cm\t\t\r\n"
        "Cartongesso standard\t12,5\t2\r\n");
    QCOMPARE(fixture_->Find<QComboBox>("Combo1")->currentText(), QString("3"));
    QCOMPARE(fixture_->Find<QComboBox>("Combo3_0")->currentText(), QString("Intonaco di calce e cemento"));
    QCOMPARE(Text("Text5_0"), QString("20"));
    QCOMPARE(fixture_->Find<QComboBox>("Combo3_1")->currentText(), QString("Forati in laterizio 12 cm"));
    QCOMPARE(Text("Text5_1"), QString("120"));
    QCOMPARE(Text("Text5_2"), QString("12,5"));
    QCOMPARE(fixture_->Find<QComboBox>("Combo2_2")->currentText(), QString("2"));
    QCOMPARE(Setup().leaf1.rows[2].slot.name, std::string("Cartongesso standard"));
    fixture_->Find<QAction>("annulla")->trigger();
    QCOMPARE(fixture_->Find<QComboBox>("Combo1")->currentText(), QString("1"));
    QCOMPARE(fixture_->Find<QComboBox>("Combo3_0")->currentText(), QString("Mattone pieno"));
  }

  void aTableThatIsRefusedChangesNothing_data() {
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("reason");
    QTest::newRow("unknown material") << "Mattone pieno\t120\nCriptonite\t10"
                                      << "Criptonite";
    QTest::newRow("thickness") << "Mattone pieno\t-5"
                               << "-5";
    QTest::newRow("thickness of nought") << "Mattone pieno\t0"
                                         << "\"0\"";
    QTest::newRow("sheets") << "Mattone pieno\t120\t15"
                            << "15";
    QTest::newRow("half a sheet") << "Mattone pieno\t120\t1,5"
                                  << "1,5";
    QTest::newRow("too many") << QString("Mattone pieno\t120\n").repeated(11) << "10";
  }
  void aTableThatIsRefusedChangesNothing() {
    QFETCH(const QString, table);
    QFETCH(const QString, reason);
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    const elements::Setup before = Setup();
    Paste("Combo3_0", table);
    QVERIFY(Setup() == before);
    const QString note = FieldNote::TextAt(fixture_->Find<QComboBox>("Combo3_0"));
    QVERIFY2(note.contains(reason) && note.contains("ulla è stato cambiato"), qPrintable(note));
  }

  void aNoteLeavesTheOtherRowsFree() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    TypeInto(fixture_->Find<QComboBox>("Combo1"), "4");
    for (int row = 0; row < 4; ++row) {
      const QString name = "Text5_" + QString::number(row);
      fixture_->Type(name, "0");
      QTest::keyClick(Field(name), Qt::Key_Return);
      const auto* note = static_cast<FieldNote*>(fixture_->window->findChild<QWidget*>("NotaCampo"));
      QVERIFY(note != nullptr);
      for (int other = 0; other < 4; ++other) {
        for (const char* array : {"Text5_", "Combo3_", "Combo2_"}) {
          const auto* field = fixture_->Find<QWidget>(array + QString::number(other));
          if (field->objectName() == name) continue;
          const QRect place(field->mapTo(note->parentWidget(), QPoint(0, 0)), field->size());
          QVERIFY2(!note->Words().intersects(place), qPrintable(name + " over " + field->objectName()));
        }
      }
    }
  }

  void aClickSelectsWhatIsThere() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    fixture_->Find<QWidget>("Combo1")->setFocus();
    QTest::mouseClick(Field("Text5_0"), Qt::LeftButton);
    QTRY_VERIFY(Field("Text5_0")->hasSelectedText());
    QTest::keyClicks(Field("Text5_0"), "80");
    QCOMPARE(Text("Text5_0"), QString("80"));
    auto* count = fixture_->Find<QComboBox>("Combo1");
    QTest::mouseClick(count->lineEdit(), Qt::LeftButton);
    QTRY_COMPARE(count->lineEdit()->selectedText(), count->currentText());
    QTest::keyClick(Field("Text5_0"), Qt::Key_Backtab);
    QCOMPARE(Setup().leaf1.rows[0].slot.thickness_mm, 80.0);
  }

  void sheetsAboveTheHighestAreNotCounted() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    auto* sheets = fixture_->Find<QComboBox>("Combo2_0");
    sheets->setFocus();
    sheets->lineEdit()->selectAll();
    QTest::keyClicks(sheets, "15");
    QCOMPARE(Setup().leaf1.rows[0].multiplicity, 10);
    QCOMPARE(sheets->currentText(), QString("10"));
  }

  void nothingComesBehindACappedCount() {
    fixture_->Choose("cal_facciata");
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(5);
    auto* count = fixture_->Find<QComboBox>("Combo15");
    count->setFocus();
    count->lineEdit()->selectAll();
    QTest::keyClicks(count, "12");
    QCOMPARE(Setup().facade.count_text, std::string("9 "));
    QTest::keyClick(count, Qt::Key_End);
    QTest::keyClicks(count, " 3x");
    QCOMPARE(Setup().facade.Count(), 9);
    QVERIFY2(!count->currentText().contains('x'), qPrintable(count->currentText()));
  }

  void theChosenCavityStaysAsItIs() {
    fixture_->Choose("TIPO_PARETE_DOPPIA_3");
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(2);
    fixture_->Find<QRadioButton>("Option2_1")->click();
    fixture_->Type("Text31", "60");
    fixture_->Find<QRadioButton>("Option2_1")->click();
    QCOMPARE(Text("Text31"), QString("60"));
  }

  void theBoxNamesTheDepthThatIsSet() {
    fixture_->Choose("TIPO_PARETE_DOPPIA_0");
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(2);
    fixture_->Find<QRadioButton>("Option2_2")->click();
    fixture_->Type("Text26_0", "130");
    fixture_->Type("Text9", "0");
    fixture_->Find<QWidget>("Text26_0")->setFocus();
    QCOMPARE(fixture_->told.size(), 1);
    QVERIFY2(fixture_->told.constFirst().endsWith("130 mm."), qPrintable(fixture_->told.constFirst()));
    QCOMPARE(Text("Text9"), QString("130"));
  }

  void aLiningIsAsDeepAsItsFibreFromTheStart() {
    fixture_->Choose("mnuCalcoloControplaccaggiScelta_2");
    const auto& cavity = Setup().sea_cavity;
    QCOMPARE(QString::fromStdString(cavity.depth_text), QString::number(cavity.fibres[0].slot.thickness_mm));
  }

  void aColumnIsPastedAndCopied() {
    OpenComponentBands();
    QApplication::clipboard()->setText("31,5\n32\n33.25");
    Field("Text12_2")->setFocus();
    QTest::keyClick(Field("Text12_2"), Qt::Key_V, Qt::ControlModifier);
    const auto& texts = Setup().facade.components.at(0).band_texts;
    QCOMPARE(texts.at(2), std::string("31,5"));
    QCOMPARE(texts.at(4), std::string("33,25"));
    QTest::mouseClick(fixture_->Find<QToolButton>("Text12_Copia"), Qt::LeftButton);
    QCOMPARE(QApplication::clipboard()->text().split('\n').mid(1, 4),
             QStringList({"", "31,5", "32", "33,25"}));
  }

  void manyDigitsAreKeptAndOneIsShown() {
    OpenComponentBands();
    fixture_->open.Edit(
        [](elements::Setup& setup) { setup.facade.components.at(0).band_texts.at(0) = "32,460384451"; });
    QCOMPARE(Text("Text12_0"), QString("32,5"));
    QTest::mouseClick(Field("Text12_0"), Qt::LeftButton);
    Field("Text12_1")->setFocus();
    QCOMPARE(Setup().facade.components.at(0).band_texts.at(0), std::string("32,460384451"));
    fixture_->Type("Text12_0", "33,75");
    QCOMPARE(Setup().facade.components.at(0).band_texts.at(0), std::string("33,75"));
  }

  void blanksAndUnitsAreRead() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    for (const char* pasted : {"  33  ", "33 mm", "33,0mm"}) {
      fixture_->Type("Text5_0", "7");
      QApplication::clipboard()->setText(pasted);
      Field("Text5_0")->selectAll();
      QTest::keyClick(Field("Text5_0"), Qt::Key_V, Qt::ControlModifier);
      QCOMPARE(Setup().leaf1.rows[0].slot.thickness_mm, 33.0);
    }
    QApplication::clipboard()->setText("trentatré");
    Field("Text5_0")->selectAll();
    QTest::keyClick(Field("Text5_0"), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(Setup().leaf1.rows[0].slot.thickness_mm, 33.0);
    QVERIFY(!FieldNote::TextAt(Field("Text5_0")).isEmpty());
  }

  void facadeInputsTakeTheResultAway() {
    fixture_->file = QString(EXAMPLES) + "/facciata.drav";
    fixture_->Find<QAction>("Apri_Progetto")->trigger();
    for (const char* box : {"Text7", "Text13_5"}) {
      fixture_->Run();
      QVERIFY2(fixture_->open.Result(), qPrintable(fixture_->told.join('\n')));
      QTest::keyClicks(Field(box), "1");
      QVERIFY2(!fixture_->open.Result(), box);
    }
  }

  void theAreaOfTheFacadeIsCalledSo() {
    fixture_->Choose("cal_facciata");
    for (const auto* label : fixture_->window->findChildren<QLabel*>()) {
      if (label->buddy() == Field("Text7"))
        QCOMPARE(label->text(), QString("Area totale della facciata (m²)"));
    }
  }

  void aSmallElementHasNoArea() {
    OpenComponentBands();
    auto* small = fixture_->Find<QCheckBox>("CheckText23_0");
    small->click();
    QCOMPARE(Setup().facade.components.at(0).area_text, std::string("-"));
    QVERIFY(!Field("Text23_0")->isEnabled());
    small->click();
    QVERIFY(Field("Text23_0")->isEnabled());
    QCOMPARE(Setup().facade.components.at(0).area_text, std::string());
  }

  void keysGoToThePage() {
    fixture_->Choose("TIPO_PARETE_DOPPIA_0");
    QTest::keyClick(fixture_->window.get(), Qt::Key_2, Qt::ControlModifier);
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("Combo5"));
    fixture_->save = false;
    fixture_->file = QString(EXAMPLES) + "/parete-forato-intonacata.drav";
    fixture_->Find<QAction>("Apri_Progetto")->trigger();
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("Combo1"));
  }

 private:
  const elements::Setup& Setup() const { return fixture_->open.Setup(); }
  QLineEdit* Field(const QString& name) const { return fixture_->Find<QLineEdit>(name); }
  QString Text(const QString& name) const { return Field(name)->text(); }
  static void TypeInto(QComboBox* box, const QString& keys) {
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box->lineEdit(), keys);
    if (QWidget* hits = QApplication::activePopupWidget()) hits->close();
  }
  void Paste(const QString& list, const QString& text) const {
    auto* box = fixture_->Find<QComboBox>(list);
    box->setFocus();
    QApplication::clipboard()->setText(text);
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
  }
  void OpenComponentBands() {
    fixture_->Choose("cal_facciata");
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(5);
  }

  std::unique_ptr<WindowFixture> fixture_;
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::TypingTest)
#include "typing_test.moc"
