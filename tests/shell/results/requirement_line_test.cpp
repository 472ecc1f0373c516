#include "shell/results/requirement_line.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include "elements/requirement.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {

/// The required rating under the chart.
class RequirementLineTest : public QObject {
  Q_OBJECT

 private slots:
  void saysWhatIsMissingAndKeepsTheResult() {
    WindowFixture fixture;
    fixture.window->show();
    fixture.Choose("TIPO_PARETE_SINGOLA_0");
    fixture.Run();
    const auto result = fixture.open.Result();
    const double rw = *result->rw;
    fixture.Type("TextRequisito", QString::number(rw + 4.0));
    QCOMPARE(Verdict(fixture), QString("limite %1: mancano 4").arg(rw + 4.0));
    QVERIFY(fixture.open.Result() == result);
    fixture.Type("TextRequisito", QString::number(rw - 3.0));
    QCOMPARE(Verdict(fixture), QString("limite %1: rispettato, margine 3").arg(rw - 3.0));
    auto* field = fixture.Find<QLineEdit>("TextRequisito");
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Backspace);
    QCOMPARE(Verdict(fixture), QString());
    QVERIFY(fixture.open.Setup().further.IsEmpty());
  }

  void isUndoneByItsName() {
    WindowFixture fixture;
    fixture.window->show();
    fixture.Choose("TIPO_PARETE_SINGOLA_0");
    fixture.Type("TextRequisito", "50");
    QCOMPARE(fixture.Find<QAction>("annulla")->text(), QString("Annulla limite"));
    fixture.Find<QAction>("annulla")->trigger();
    QCOMPARE(fixture.Find<QLineEdit>("TextRequisito")->text(), QString());
    fixture.Find<QAction>("ripeti")->trigger();
    QCOMPARE(fixture.Find<QLineEdit>("TextRequisito")->text(), QString("50"));
  }

  void isSavedWithTheProject() {
    const QTemporaryDir folder;
    WindowFixture fixture;
    fixture.window->show();
    fixture.Choose("TIPO_PARETE_SINGOLA_0");
    fixture.Type("TextRequisito", "52,5");
    fixture.file = folder.filePath("limite.drav");
    fixture.Find<QAction>("Salva_Progetto")->trigger();
    fixture.Type("TextRequisito", "40");
    fixture.save = false;
    fixture.Find<QAction>("Apri_Progetto")->trigger();
    QCOMPARE(elements::RequirementOf(fixture.open.Setup()), 52.5);
    QCOMPARE(fixture.Find<QLineEdit>("TextRequisito")->text(), QString("52,5"));
  }

  void standsInTheChart() {
    WindowFixture fixture;
    fixture.window->show();
    fixture.Choose("TIPO_PARETE_SINGOLA_0");
    fixture.Run();
    const auto pixels = [&] {
      constexpr QRgb kLine = qRgb(0x00, 0x7A, 0x87);
      const QImage picture = fixture.Find<QWidget>("Picture1")->grab().toImage();
      int count = 0;
      for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) count += picture.pixel(x, y) == kLine ? 1 : 0;
      }
      return count;
    };
    QCOMPARE(pixels(), 0);
    fixture.Type("TextRequisito", "60");
    QVERIFY(pixels() > 30);
    // Reports and printed pages read the requirement themselves.
    QVERIFY(!fixture.Results().Chart()->marks.required);
  }

 private:
  static QString Verdict(const WindowFixture& fixture) {
    const auto* label = fixture.Find<QLabel>("LabelEsitoRequisito");
    return label->isVisible() ? label->text() : QString();
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::RequirementLineTest)
#include "requirement_line_test.moc"
