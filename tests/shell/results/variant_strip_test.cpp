#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include "elements/variants.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {

/// Variants are fixed, compared and gone back to, as a hand does it.
class VariantStripTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    fixture_ = std::make_unique<WindowFixture>();
    fixture_->window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture_->window.get()));
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
  }
  void cleanup() { fixture_.reset(); }

  void theStripTakesNoRoomWhileThereIsNothingToFix() {
    QVERIFY(!fixture_->Find<QWidget>("Varianti")->isVisible());
    fixture_->Run();
    QVERIFY(fixture_->Find<QToolButton>("FissaVariante")->isVisible());
  }

  void aClickGoesBackWithTheResultAndCanBeUndone() {
    FixTwo();
    const elements::Setup second = fixture_->open.Setup();
    QVERIFY(Button(1)->isChecked());
    QTest::mouseClick(Button(0), Qt::LeftButton);
    QCOMPARE(fixture_->Find<QLineEdit>("Text5_0")->text(), QString("80"));
    QVERIFY(fixture_->open.Result());
    QVERIFY(Button(0)->isChecked());
    QVERIFY(!Button(1)->isChecked());
    QCOMPARE(Undo()->text(), QString("Annulla ritorno a una variante"));
    Undo()->trigger();
    QVERIFY(fixture_->open.Setup() == second);
  }

  void theButtonsTellNumbersAndDifference() {
    FixTwo();
    const auto variants = VariantsOf(fixture_->open.Setup().further);
    const int first = static_cast<int>(*variants[0].Result()->rw);
    const int second = static_cast<int>(*variants[1].Result()->rw);
    QVERIFY(first < second);
    QVERIFY2(Button(0)->text().startsWith("A\nRw " + QString::number(first) + " dB ("),
             qPrintable(Button(0)->text()));
    QVERIFY(Button(0)->text().contains("▼ −" + QString::number(second - first)));
    QVERIFY(Button(0)->text().contains("80,0 mm"));
    QVERIFY(Button(1)->text().contains('='));
    fixture_->Type("Text5_0", "90");
    QVERIFY(!Button(0)->text().contains("▼"));
  }

  void aLongStripHasItsBarBelowTheVariants() {
    FixTwo();
    for (const char* thickness : {"100", "110", "130", "140", "150", "160"}) {
      fixture_->Type("Text5_0", thickness);
      fixture_->Run();
      fixture_->Find<QToolButton>("FissaVariante")->click();
    }
    fixture_->window->resize(fixture_->window->minimumSizeHint().width(), 700);
    const auto* area = fixture_->Find<QWidget>("Varianti")->findChild<QScrollArea*>();
    QTRY_VERIFY(area->horizontalScrollBar()->isVisible());
    const auto below = [&] { return Button(0)->mapTo(area->viewport(), Button(0)->rect().bottomLeft()).y(); };
    QTRY_VERIFY2(below() < area->viewport()->height(), qPrintable(QString::number(below())));
    QVERIFY(Button(0)->height() >= Button(0)->sizeHint().height());
  }

  void theCurvesOfTheOthersStandInTheChart() {
    FixTwo();
    const auto& chart = fixture_->Results().Chart();
    QVERIFY(chart.has_value());
    QCOMPARE(chart->further.size(), std::size_t{1});
    QCOMPARE(chart->further[0].name, std::string("A"));
    QTest::mouseClick(fixture_->Find<QToolButton>("CurveVarianti"), Qt::LeftButton);
    QVERIFY(fixture_->Results().Chart()->further.empty());
  }

  void fixingLeavesTheResultAndTheSavedFileHoldsTheVariants() {
    FixTwo();
    QVERIFY(fixture_->open.Result());
    const elements::Setup before = fixture_->open.Setup();
    const QTemporaryDir folder;
    fixture_->file = folder.filePath("varianti.drav");
    fixture_->Find<QAction>("Salva_Progetto")->trigger();
    fixture_->Find<QAction>("Apri_Progetto")->trigger();
    QVERIFY(VariantsOf(fixture_->open.Setup().further) == VariantsOf(before.further));
    QTest::mouseClick(Button(0), Qt::LeftButton);
    QCOMPARE(fixture_->Find<QLineEdit>("Text5_0")->text(), QString("80"));
  }

  void aVariantOfAnotherCalculationBringsItsTabs() {
    FixTwo();
    fixture_->Choose("TIPO_PARETE_DOPPIA_0");
    QTest::mouseClick(Button(1), Qt::LeftButton);
    QCOMPARE(fixture_->open.Setup().calculation, std::optional(elements::Calculation::kSingleWallGeneric));
    QVERIFY(!fixture_->Find<QTabWidget>("SSTab1")->isTabVisible(1));
  }

  void keysRenameMoveAndRemove() {
    FixTwo();
    fixture_->services.boxes.ask_name = [](const NameQuestion& question) {
      return question.proposed == "A" ? QString("con intonaco") : QString("B");
    };
    Button(0)->setFocus();
    QTest::keyClick(Button(0), Qt::Key_F2);
    QCOMPARE(Names(), QStringList({"con intonaco", "B"}));
    QTest::keyClick(Button(0), Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(Names(), QStringList({"B", "con intonaco"}));
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(Button(1)));
    QTest::keyClick(Button(1), Qt::Key_F2);
    QCOMPARE(fixture_->told.size(), 1);
    QTest::keyClick(Button(1), Qt::Key_Delete);
    QCOMPARE(Names(), QStringList({"B"}));
    QVERIFY(fixture_->open.Result());
    for (int i = 0; i < 3; ++i) Undo()->trigger();
    QCOMPARE(Names(), QStringList({"A", "B"}));
  }

 private:
  QAction* Undo() const { return fixture_->Find<QAction>("annulla"); }
  /// The last one made is the one that is shown.
  QToolButton* Button(int index) const {
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return fixture_->Find<QToolButton>("Variante_" + QString::number(index));
  }
  QStringList Names() const {
    QStringList names;
    for (const elements::Variant& variant : VariantsOf(fixture_->open.Setup().further))
      names += QString::fromStdString(variant.name);
    return names;
  }
  /// A is 80 mm, B 240 mm; B is open.
  void FixTwo() {
    for (const char* thickness : {"80", "240"}) {
      fixture_->Type("Text5_0", thickness);
      fixture_->Run();
      QTest::mouseClick(fixture_->Find<QToolButton>("FissaVariante"), Qt::LeftButton);
    }
  }

  std::unique_ptr<WindowFixture> fixture_;
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::VariantStripTest)
#include "variant_strip_test.moc"
