#include "shell/results/chart_view.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include "shell/results/chart_zoom.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {

/// The chart under mouse and keys.
class ChartViewTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    fixture_ = std::make_unique<WindowFixture>();
    fixture_->window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture_->window.get()));
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    fixture_->Run();
    chart_ = fixture_->Find<ChartView>("Picture1");
    chart_->setFocus();
  }
  void cleanup() { fixture_.reset(); }

  void arrowsReadTheBands() {
    QCOMPARE(Values(), QString());
    QTest::keyClick(chart_, Qt::Key_Right);
    const acoustics::Spectrum& levels = *fixture_->open.Result()->spectrum;
    QVERIFY2(Values().startsWith("500 Hz  ·  Curva teorica: " + Decibels(levels[10])), qPrintable(Values()));
    QVERIFY(Values().contains("Curva di rif.: "));
    // The line has no room for many curves; beside the band's line all are told.
    QVERIFY2(QToolTip::text().startsWith("500 Hz\nCurva teorica: "), qPrintable(QToolTip::text()));
    QVERIFY(QToolTip::text().contains("\nCurva di rif.: "));
    QTest::keyClick(chart_, Qt::Key_Left);
    QVERIFY(Values().startsWith("400 Hz  ·  Curva teorica: " + Decibels(levels[9])));
    for (int i = 0; i < 30; ++i) QTest::keyClick(chart_, Qt::Key_Left);
    QVERIFY(Values().startsWith("50 Hz"));
    QCOMPARE(chart_->accessibleDescription(), Values());
    fixture_->Find<QWidget>("Text5_0")->setFocus();
    QCOMPARE(Values(), QString());
  }

  void aSumAbove32IsExplained() {
    QVERIFY2(chart_->toolTip().contains("Scostamenti sfavorevoli"), qPrintable(chart_->toolTip()));
    QVERIFY(!chart_->toolTip().contains("oltre 32"));
    fixture_->save = false;
    fixture_->window->OpenProject(EXAMPLES "/parete-cartongesso.drav");
    fixture_->Run();
    QVERIFY2(chart_->toolTip().contains("Scostamenti sfavorevoli 32,5 su 32,0 dB\noltre 32: la relazione "),
             qPrintable(chart_->toolTip()));
  }

  void keysBringItCloserAndBack() {
    const QImage whole = Picture();
    QTest::keyClick(chart_, Qt::Key_Plus);
    const QImage closer = Picture();
    QVERIFY(closer != whole);
    QTest::keyClick(chart_, Qt::Key_Right, Qt::ShiftModifier);
    QVERIFY(Picture() != closer);
    QTest::keyClick(chart_, Qt::Key_Left, Qt::ShiftModifier);
    QTest::keyClick(chart_, Qt::Key_Minus);
    QTest::keyClick(chart_, Qt::Key_0);
    QCOMPARE(Picture(), whole);
    QTest::keyClick(chart_, Qt::Key_Plus);
    QTest::keyClick(chart_, Qt::Key_Escape);
    QCOMPARE(Picture(), whole);
  }

  void theWheelWithCtrlAndADoubleClick() {
    const QImage whole = Picture();
    QWheelEvent turn(QPointF(100, 100), chart_->mapToGlobal(QPointF(100, 100)), {}, {0, 120}, Qt::NoButton,
                     Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(chart_, &turn);
    QVERIFY(Picture() != whole);
    QTest::mouseDClick(chart_, Qt::LeftButton, {}, {100, 100});
    QCOMPARE(Picture(), whole);
  }

  void copiesTheNumbers() {
    QTest::keyClick(chart_, Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QGuiApplication::clipboard()->text().split('\n');
    QCOMPARE(lines.size(), 23);
    const acoustics::Spectrum& levels = *fixture_->open.Result()->spectrum;
    QVERIFY2(lines.at(11).startsWith("500\t" + QString::number(levels[10], 'f', 1).replace('.', ',')),
             qPrintable(lines.at(11)));
  }

  void neverShowsMoreThanTheWhole() {
    presentation::ChartWindow window = Zoomed({}, 0.5, {0.5, 0.5});
    QCOMPARE(window, (presentation::ChartWindow{.left = 5, .right = 15, .bottom = 22.5, .top = 67.5}));
    QCOMPARE(Moved(window, {-5.0, 5.0}),
             (presentation::ChartWindow{.left = 0, .right = 10, .bottom = 45, .top = 90}));
    QCOMPARE(Zoomed(window, 100.0, {0.1, 0.9}), presentation::ChartWindow());
    for (int i = 0; i < 50; ++i) window = Zoomed(window, 0.8, {0.0, 0.0});
    QCOMPARE(window.right - window.left, 4.0);
    QCOMPARE(window.left, 5.0);
  }

 private:
  /// The line itself may end with an ellipsis.
  QString Values() const { return fixture_->Find<QLabel>("LabelValori")->toolTip(); }
  QImage Picture() const { return chart_->grab().toImage(); }
  static QString Decibels(double level) { return QString::number(level, 'f', 1).replace('.', ',') + " dB"; }

  std::unique_ptr<WindowFixture> fixture_;
  ChartView* chart_ = nullptr;
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::ChartViewTest)
#include "chart_view_test.moc"
