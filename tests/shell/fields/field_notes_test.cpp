#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "calculation/runs/refusals.h"
#include "shell/commands/command_set.h"
#include "shell/fields/field_note.h"
#include "shell/page_parts/page_context.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {

/// What stands beside a field whose entry was corrected, or that a refused run asks to correct.
class FieldNotesTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    fixture_ = std::make_unique<WindowFixture>();
    fixture_->window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture_->window.get()));
  }
  void cleanup() { fixture_.reset(); }

  void aThicknessOfNoughtIsExplained() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    fixture_->Type("Text5_0", "0");
    QTest::keyClick(fixture_->Find<QWidget>("Text5_0"), Qt::Key_Return);
    QVERIFY2(NoteAt("Text5_0").contains("superare 0"), qPrintable(NoteAt("Text5_0")));
    QCOMPARE(fixture_->Find<QWidget>("Text5_0")->accessibleDescription(), NoteAt("Text5_0"));
    QTest::keyClick(fixture_->Find<QWidget>("Text5_0"), Qt::Key_5);
    QTRY_COMPARE(NoteAt("Text5_0"), QString());
    QVERIFY(fixture_->Find<QWidget>("Text5_0")->accessibleDescription().isEmpty());
  }

  void aNoteGoesWithItsElement() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    fixture_->Type("Text5_0", "0");
    QTest::keyClick(fixture_->Find<QWidget>("Text5_0"), Qt::Key_Return);
    QVERIFY(!NoteAt("Text5_0").isEmpty());
    fixture_->save = false;
    fixture_->window->OpenProject(EXAMPLES "/doppia-forati-lana.drav");
    QCOMPARE(fixture_->Find<QLineEdit>("Text5_0")->text(), QString("15"));
    QCOMPARE(NoteAt("Text5_0"), QString());
  }

  void aNumberThatStaysIsNotExplained() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    for (const char* keys : {"25", "12,5", "1E3"}) {
      fixture_->Type("Text5_0", keys);
      QCOMPARE(NoteAt("Text5_0"), QString());
    }
  }

  void anUnfinishedNumberIsExplainedWhenItsFieldIsLeft() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    fixture_->Type("Text5_0", "25");
    fixture_->Type("Text5_0", "1E");
    QCOMPARE(NoteAt("Text5_0"), QString());
    fixture_->Find<QWidget>("Combo2_0")->setFocus();
    QCOMPARE(fixture_->Find<QLineEdit>("Text5_0")->text(), QString("1"));
    QVERIFY(NoteAt("Text5_0").contains("incompleto"));
    QCOMPARE(fixture_->open.Setup().leaf1.rows[0].thickness_text, std::string("1"));
  }

  void aRunSettlesAnUnfinishedNumber() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    fixture_->Type("Text5_0", "120");
    fixture_->Type("Text5_0", "12E");
    fixture_->Run();
    QCOMPARE(fixture_->Find<QLineEdit>("Text5_0")->text(), QString("12"));
    fixture_->Find<QWidget>("Combo2_0")->setFocus();
    QVERIFY(fixture_->open.Result());
    QCOMPARE(fixture_->open.Setup().leaf1.rows[0].slot.thickness_mm, 12.0);
  }

  void aCountAboveItsHighestIsExplained_data() {
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("highest");
    QTest::newRow("leaf 1") << "TIPO_PARETE_SINGOLA_0"
                            << "Combo1"
                            << "10";
    QTest::newRow("SEA") << "TIPO_PARETE_SINGOLA_4"
                         << "ComboMatSEA1"
                         << "3";
    QTest::newRow("components") << "cal_facciata"
                                << "Combo15"
                                << "9";
    QTest::newRow("resilient") << "cal_solaio"
                               << "Combo12"
                               << "10";
  }
  void aCountAboveItsHighestIsExplained() {
    QFETCH(const QString, entry);
    QFETCH(const QString, box);
    QFETCH(const QString, highest);
    fixture_->Choose(qPrintable(entry));
    auto* count = fixture_->Find<QComboBox>(box);
    auto* tabs = fixture_->Find<QTabWidget>("SSTab1");
    for (int tab = 0; tab < tabs->count() && !count->isVisible(); ++tab) tabs->setCurrentIndex(tab);
    count->setFocus();
    count->lineEdit()->selectAll();
    QTest::keyClicks(count, "12");
    QVERIFY2(NoteAt(box).endsWith(' ' + highest), qPrintable(NoteAt(box)));
  }

  void anUnknownMaterialIsExplained() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    auto* box = fixture_->Find<QComboBox>("Combo3_0");
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box, "criptonite");
    fixture_->Find<QWidget>("Text5_0")->setFocus();
    QVERIFY(NoteAt("Combo3_0").contains("Nessun materiale ha"));
  }

  void aCavityThatIsRaisedSaysSo() {
    fixture_->Choose("TIPO_PARETE_DOPPIA_0");
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(2);
    fixture_->Find<QAbstractButton>("Option2_2")->click();
    fixture_->Type("Text26_0", "150");
    fixture_->Type("Text9", "20");
    fixture_->Find<QWidget>("Text26_0")->setFocus();
    QCOMPARE(fixture_->Find<QLineEdit>("Text9")->text(), QString("150"));
    QVERIFY(NoteAt("Text9").contains("intercapedine"));
  }

  void aNoteGoesWithItsPage() {
    fixture_->Choose("TIPO_PARETE_DOPPIA_0");
    fixture_->Type("Text5_0", "0");
    QTest::keyClick(fixture_->Find<QWidget>("Text5_0"), Qt::Key_Return);
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(1);
    QTRY_COMPARE(NoteAt("Text5_0"), QString());
  }

  void aRefusedRunGoesToWhatIsMissing_data() {
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("control");
    QTest::addColumn<int>("tab");
    QTest::newRow("SEA wall without a cavity") << "TIPO_PARETE_DOPPIA_4"
                                               << "TextSpessoreIntercSEA" << 8;
    QTest::newRow("facade without an area") << "cal_facciata"
                                            << "Text7" << 4;
    QTest::newRow("lining without a base") << "mnuCalcoloControplaccaggiScelta_1"
                                           << "TextMassaBase" << 4;
    QTest::newRow("generic ceiling") << "mnuCalcoloControsoffittiScelta_0"
                                     << "TextMassaBase" << 4;
  }
  void aRefusedRunGoesToWhatIsMissing() {
    QFETCH(const QString, entry);
    QFETCH(const QString, control);
    QFETCH(const int, tab);
    fixture_->Choose(qPrintable(entry));
    auto* tabs = fixture_->Find<QTabWidget>("SSTab1");
    for (int other = tabs->count() - 1; other >= 0; --other) {
      if (tabs->isTabVisible(other) && other != tab) tabs->setCurrentIndex(other);
    }
    fixture_->Run();
    QCOMPARE(fixture_->told.size(), 1);
    QCOMPARE(tabs->currentIndex(), tab);
    QCOMPARE(QApplication::focusWidget()->objectName(), control);
    QVERIFY(!NoteAt(control).isEmpty());
    QTest::keyClick(fixture_->Find<QWidget>(control), Qt::Key_5);
    QTRY_COMPARE(NoteAt(control), QString());
  }

  void aRefusedFacadeGoesToItsMissingBand() {
    fixture_->file = QString(EXAMPLES) + "/facciata.drav";
    fixture_->Choose("Apri_Progetto");
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(5);
    fixture_->Find<QTabWidget>("SSTab2")->setCurrentIndex(2);
    fixture_->Type("Text15_9", "0");
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(4);
    fixture_->Run();
    QCOMPARE(fixture_->Find<QTabWidget>("SSTab1")->currentIndex(), 5);
    QCOMPARE(fixture_->Find<QTabWidget>("SSTab2")->currentIndex(), 2);
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("Text15_9"));
  }

  void aNoteStandsWhereItsFieldIsAfterScrolling() {
    fixture_->window->resize(1366, 768);
    fixture_->file = QString(EXAMPLES) + "/facciata-nove-componenti.drav";
    fixture_->Choose("Apri_Progetto");
    fixture_->open.Edit([](elements::Setup& setup) { setup.facade.components[6].band_texts[3].clear(); });
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(4);
    fixture_->Run();
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    QVERIFY(field && field->text().isEmpty());
    const FieldNote* note = fixture_->window->findChild<FieldNote*>("NotaCampo");
    QVERIFY(note);
    const QWidget* page = note->parentWidget();
    const auto place = [page](const QWidget* widget) {
      return QRect(widget->mapTo(page, QPoint(0, 0)), widget->size());
    };
    QTRY_COMPARE(note->Frame().center(), place(field).center());
    QVERIFY(note->visibleRegion().contains(note->Frame().translated(-note->pos())));
    QVERIFY(note->visibleRegion().contains(note->Words().translated(-note->pos())));
    for (const QLabel* caption : page->findChildren<QLabel*>()) {
      if (!caption->isVisible() || caption->text().isEmpty()) continue;
      QVERIFY2(!note->Words().intersects(place(caption)), qPrintable(caption->text()));
    }
    for (const QTabBar* tabs : page->findChildren<QTabBar*>())
      QVERIFY(!note->Words().intersects(place(tabs)));
    // The table above gets shorter: what stands below it moves up, and the frame with it.
    const QRect before = place(field);
    fixture_->open.Edit([](elements::Setup& setup) { setup.facade.count_text = "7"; });
    QTRY_VERIFY(place(field).top() < before.top());
    QTRY_COMPARE(note->Frame().center(), place(field).center());
  }

  void everyFieldThatARefusalNamesIsThere() {
    for (const elements::CalculationRow& row : elements::Catalogue()) {
      fixture_->Choose(row.calculation);
      for (int number :
           {231, 233, 234, 235, 236, 244, 245, 246, 247, 248, 249, 250, 251, 252, 253, 254, 256, 257}) {
        RequireField({MessageRow{number}});
      }
      for (int number = 1001; number < 1100; ++number) RequireField({MessageRow{number}});
    }
  }

  void everyFieldThatACalculationReadsHasItsPlace() {
    for (const elements::CalculationRow& row : elements::Catalogue()) {
      fixture_->Choose(row.calculation);
      const PageContext& pages = fixture_->window->findChild<CommandSet*>()->At().pages;
      elements::VisitSingleFields(
          [&](elements::Field field, const char* name, const auto&) {
            if (row.Reads(field)) QVERIFY2(pages.ControlOf({field}) != nullptr, name);
          },
          fixture_->open.Setup());
    }
  }

 private:
  QString NoteAt(const QString& control) const { return FieldNote::TextAt(fixture_->Find<QWidget>(control)); }
  void RequireField(const MessageLine& line) const {
    const auto refusal = calculation::FindRefusal(fixture_->open.Setup(), {{line}});
    if (!refusal) return;
    const PageContext& pages = fixture_->window->findChild<CommandSet*>()->At().pages;
    QVERIFY2(pages.ControlOf(refusal->field) != nullptr,
             qPrintable(QString::number(std::get<MessageRow>(line.front()).number)));
  }

  std::unique_ptr<WindowFixture> fixture_;
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::FieldNotesTest)
#include "field_notes_test.moc"
