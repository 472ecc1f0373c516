// The table of all ratings beside the rating: it opens, follows the result and goes with it.
#include <QLabel>
#include <QTest>
#include <QToolButton>

#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {

class SingleNumbersPanelTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { fixture_ = std::make_unique<WindowFixture>(); }

  void OpensBesideTheRating() {
    fixture_->Choose(elements::Calculation::kSingleWallBrick);
    auto* button = fixture_->Find<QToolButton>("PulsanteIndici");
    QVERIFY(!button->isEnabled());
    fixture_->Run();
    QVERIFY(button->isEnabled());
    QVERIFY(Frame()->isHidden());
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!Frame()->isHidden());
    const elements::ResultSet& result = *fixture_->open.Result();
    QCOMPARE(Value("Rw"), QString("%1 dB").arg(*result.rw));
    QCOMPARE(Value("C"), QString("%1 dB").arg(*result.c));
    QVERIFY(Value("C50-5000").endsWith(" dB"));
    QVERIFY(Value("Rw,0.1").contains(','));
    QVERIFY(!Value("STC").contains("dB"));
    for (const QLabel* label : Frame()->findChildren<QLabel*>()) {
      if (label->objectName() != "LabelIndici")
        QVERIFY2(!label->toolTip().isEmpty(), qPrintable(label->text()));
    }
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(Frame()->isHidden());
  }

  void GoesWithTheResultAndComesBackWithTheNext() {
    fixture_->Choose(elements::Calculation::kSingleWallBrick);
    fixture_->Run();
    QTest::mouseClick(fixture_->Find<QToolButton>("PulsanteIndici"), Qt::LeftButton);
    const QString before = Value("STC");
    fixture_->Type("Text5_0", "300");
    QVERIFY(Frame()->isHidden());
    QVERIFY(!fixture_->Find<QToolButton>("PulsanteIndici")->isEnabled());
    fixture_->Run();
    QVERIFY(!Frame()->isHidden());
    QVERIFY(Value("STC") != before);
  }

  void ShowsTheNumbersOfImpactSound() {
    fixture_->Choose(elements::Calculation::kImpactReinforcedConcrete);
    fixture_->Run();
    QTest::mouseClick(fixture_->Find<QToolButton>("PulsanteIndici"), Qt::LeftButton);
    QCOMPARE(Value("Ln,w"), QString("%1 dB").arg(*fixture_->open.Result()->lnw));
    QVERIFY(!Value("IIC").isEmpty());
    QVERIFY(Frame()->findChild<QLabel*>("Indice Rw") == nullptr);
  }

  void HasNothingToShowWithoutASpectrum() {
    fixture_->Choose(elements::Calculation::kLiningGeneric);
    fixture_->open.Edit([](elements::Setup& setup) {
      setup.base.mass_kg_m2 = 200.0F;
      setup.base.rating_text = "45";
    });
    fixture_->Run();
    QVERIFY(!fixture_->Find<QToolButton>("PulsanteIndici")->isEnabled());
  }

 private:
  QWidget* Frame() const { return fixture_->Find<QWidget>("FrameIndici"); }
  QString Value(const QString& key) const {
    const auto* label = Frame()->findChild<QLabel*>("Indice " + key);
    return label != nullptr ? label->text() : QString();
  }

  std::unique_ptr<WindowFixture> fixture_;
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::SingleNumbersPanelTest)
#include "single_numbers_panel_test.moc"
