#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QScreen>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <set>

#include "shell/fields/material_box.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

constexpr const char* kSingleGeneric = "TIPO_PARETE_SINGOLA_0";

std::set<int> VisibleTabs(const QTabWidget& strip) {
  std::set<int> visible;
  for (int tab = 0; tab < strip.count(); ++tab) {
    if (strip.isTabVisible(tab)) visible.insert(tab);
  }
  return visible;
}

}  // namespace

/// What a calculation shows, and what its lists do.
class WindowRulesTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    fixture_ = std::make_unique<WindowFixture>();
    fixture_->window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture_->window.get()));
  }
  void cleanup() { fixture_.reset(); }

  void everyKindOfElementHasItsTabs_data() {
    QTest::addColumn<QString>("entry");
    QTest::addColumn<std::set<int>>("tabs");
    QTest::newRow("single wall") << "TIPO_PARETE_SINGOLA_0" << std::set{0};
    QTest::newRow("single SEA wall") << "TIPO_PARETE_SINGOLA_4" << std::set{6};
    QTest::newRow("single floor") << "TIPO_PARETE_SINGOLA_17" << std::set{0};
    QTest::newRow("pane") << "VETRATURE_0" << std::set{0};
    QTest::newRow("double wall") << "TIPO_PARETE_DOPPIA_0" << std::set{0, 1, 2};
    QTest::newRow("glass unit") << "VETRATURE_5" << std::set{0, 1, 2};
    QTest::newRow("light wall") << "TIPO_PARETE_DOPPIA_LEGGERA_LLPI_0" << std::set{0, 1, 2};
    QTest::newRow("SEA brick") << "TIPO_PARETE_DOPPIA_4" << std::set{6, 7, 8};
    QTest::newRow("SEA plasterboard") << "TIPO_PARETE_SEA_0" << std::set{6, 7, 8};
    QTest::newRow("floating floor, airborne") << "TIPO_SOLAIO_DOPPIO" << std::set{0, 1, 3};
    QTest::newRow("floor, impact") << "cal_solaio_new_0" << std::set{0, 1, 3};
    QTest::newRow("facade") << "cal_facciata" << std::set{4, 5};
    QTest::newRow("lining") << "mnuCalcoloControplaccaggiScelta_1" << std::set{4, 7, 8};
    QTest::newRow("ceiling") << "mnuCalcoloControsoffittiScelta_1" << std::set{4, 7, 8};
  }
  void everyKindOfElementHasItsTabs() {
    QFETCH(const QString, entry);
    QFETCH(const std::set<int>, tabs);
    fixture_->Choose(qPrintable(entry));
    const auto* strip = fixture_->Find<QTabWidget>("SSTab1");
    QVERIFY(VisibleTabs(*strip) == tabs);
    QCOMPARE(strip->currentIndex(), *tabs.begin());
  }

  void connectionsHaveTheirDefaults_data() {
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("typed");
    QTest::newRow("line - line") << "TIPO_PARETE_DOPPIA_LEGGERA_LLPI_0"
                                 << "60"
                                 << "45,5";
    QTest::newRow("point - point") << "TIPO_PARETE_DOPPIA_LEGGERA_LLPI_2"
                                   << "60"
                                   << "45,5";
    QTest::newRow("isolated") << "TIPO_PARETE_DOPPIA_LEGGERA_LLPI_3"
                              << ""
                              << "";
    QTest::newRow("points") << "TIPO_PARETE_SEA_0"
                            << "20"
                            << "455";
    QTest::newRow("lines") << "TIPO_PARETE_SEA_1"
                           << "1"
                           << "455";
    QTest::newRow("lining on a frame") << "mnuCalcoloControplaccaggiScelta_2"
                                       << "1"
                                       << "455";
  }
  void connectionsHaveTheirDefaults() {
    QFETCH(const QString, entry);
    QFETCH(const QString, value);
    QFETCH(const QString, typed);
    fixture_->Choose(qPrintable(entry));
    const auto* field = fixture_->Find<QLineEdit>("Text8");
    QCOMPARE(field->isVisible(), !value.isEmpty());
    if (value.isEmpty()) return;
    QCOMPARE(field->text(), value);
    fixture_->Type("Text8", "45,5");
    QCOMPARE(field->text(), typed);
  }

  // N = 0, 1, 2: a number of connections, in no unit.
  void aLiningOnAFrameAsksForACount() {
    const auto caption = [this] {
      const auto* field = fixture_->Find<QLineEdit>("Text8");
      for (const QLabel* label : fixture_->window->findChildren<QLabel*>()) {
        if (label->buddy() == field) return label->text().remove('&');
      }
      return QString();
    };
    fixture_->Choose("mnuCalcoloControplaccaggiScelta_2");
    QCOMPARE(caption(), QString("N° collegamenti:"));
    fixture_->Choose("TIPO_PARETE_DOPPIA_LEGGERA_LLPI_0");
    QVERIFY2(caption() != "N° collegamenti:" && !caption().isEmpty(), qPrintable(caption()));
  }

  void anEndlessMassIsNoNumber() {
    fixture_->Choose("TIPO_PARETE_SINGOLA_0");
    fixture_->Type("Text5_0", "1E308");
    QVERIFY(!fixture_->Find<QLabel>("Text4")->text().contains("inf"));
    fixture_->Type("Text5_0", "123,4");
    const QString mass = fixture_->Find<QLabel>("Text4")->text();
    QVERIFY2(mass.section(',', 1).size() == 1, qPrintable("one decimal: " + mass));
  }

  void aGenericCavityGivesWayWhereItIsNotOffered() {
    fixture_->Choose("TIPO_PARETE_DOPPIA_0");
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(2);
    fixture_->Find<QAbstractButton>("Option2_2")->click();
    QVERIFY(fixture_->Find<QWidget>("Combo18")->isVisible());
    fixture_->Choose("TIPO_PARETE_DOPPIA_2");
    fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(2);
    QVERIFY(!fixture_->Find<QWidget>("Option2_2")->isVisible());
    QVERIFY(fixture_->Find<QAbstractButton>("Option2_1")->isChecked());
    QVERIFY(!fixture_->Find<QWidget>("Combo18")->isVisible());
  }

  void bothChecksOfTheSimplifiedFacadeAreOne() {
    fixture_->Choose("cal_facciata");
    for (const auto& [check, other, page] : {std::tuple{"Check2", "Check1", 4}, {"Check1", "Check2", 5}}) {
      fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(page);
      const bool ticked = !fixture_->open.Setup().facade.simplified;
      fixture_->Find<QAbstractButton>(check)->click();
      QCOMPARE(fixture_->open.Setup().facade.simplified, ticked);
      QCOMPARE(fixture_->Find<QAbstractButton>(other)->isChecked(), ticked);
      fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(5);
      for (const char* name : {"Frame11_0", "Text24_0", "Label39_0"})
        QCOMPARE(fixture_->Find<QWidget>(name)->isVisible(), ticked);
      QCOMPARE(fixture_->Find<QWidget>("Frame5_0")->isVisible(), !ticked);
      fixture_->Find<QTabWidget>("SSTab1")->setCurrentIndex(4);
      QCOMPARE(fixture_->Find<QWidget>("Frame4")->isVisible(), !ticked);
      QCOMPARE(fixture_->Find<QWidget>("Frame10")->isVisible(), ticked);
      QCOMPARE(fixture_->Find<QWidget>("Text25")->isEnabled(), ticked);
    }
  }

  void aKeywordListsItsMaterialsAlone() {
    fixture_->Choose(kSingleGeneric);
    fixture_->Run();
    auto* filter = fixture_->Find<QComboBox>("Combo7_0");
    const auto* list = fixture_->Find<QComboBox>("Combo3_0");
    const QString chosen = list->currentText();
    const int all = list->count();
    QVERIFY(filter->count() > 2);
    int listed = 0;
    for (int keyword = 1; keyword < filter->count(); ++keyword) {
      filter->setFocus();
      QTest::keyClick(filter, Qt::Key_Down);
      QVERIFY(list->count() < all);
      listed += list->count();
      QTRY_COMPARE(list->currentText(), chosen);
    }
    QVERIFY(listed >= all);
    filter->lineEdit()->selectAll();
    QTest::keyClicks(filter->lineEdit(), "tut");
    if (QWidget* hits = QApplication::activePopupWidget()) hits->close();
    QTest::keyClick(filter, Qt::Key_Return);
    QCOMPARE(filter->currentText(), QString("tutti"));
    QCOMPARE(list->count(), all);
    QVERIFY2(fixture_->open.Result(), "to look for a material changes nothing");
  }

  void listsWithoutTextSwallowLetters_data() {
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("box");
    QTest::newRow("tightness") << "cal_facciata"
                               << "ComboTenutaAria_0";
    QTest::newRow("hanger") << "mnuCalcoloControsoffittiScelta_1"
                            << "ComboTipoAppendino";
    QTest::newRow("contents") << "TIPO_PARETE_DOPPIA_4"
                              << "ComboTipoIntercSEA";
  }
  void listsWithoutTextSwallowLetters() {
    QFETCH(const QString, entry);
    QFETCH(const QString, box);
    fixture_->Choose(qPrintable(entry));
    auto* list = fixture_->Find<QComboBox>(box);
    const int before = list->currentIndex();
    QTest::keyClicks(list, "cpmfl3");
    QCOMPARE(list->currentIndex(), before);
  }

  void aMaterialIsDroppedIntoItsOwnFamilyAlone() {
    fixture_->Choose(kSingleGeneric);
    auto* box = fixture_->Find<QComboBox>("Combo3_0");
    const QString name = box->itemText(7);
    for (const auto family : {elements::MaterialFamily::kFibrous, elements::MaterialFamily::kStructural}) {
      const std::unique_ptr<QMimeData> mime(ToMime({family, name}));
      WindowFixture::Drop(box, *mime);
      QCOMPARE(box->currentText() == name, family == elements::MaterialFamily::kStructural);
    }
    QCOMPARE(fixture_->open.Setup().leaf1.rows[0].slot.name, name.toStdString());
  }

  void aPastedMaterialCountsAtOnce() {
    fixture_->Choose(kSingleGeneric);
    auto* box = fixture_->Find<QComboBox>("Combo3_0");
    const QString name = box->itemText(9);
    QGuiApplication::clipboard()->setText(name);
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(fixture_->open.Setup().leaf1.rows[0].slot.name, name.toStdString());
  }

  void aPlaceOutsideTheScreenIsBroughtBack() {
    const QTemporaryDir folder;
    fixture_->services.places.settings = folder.filePath("finestra.ini").toStdString();
    fixture_->MakeWindow();
    fixture_->window->resize(700, 500);
    fixture_->window->show();
    fixture_->window->move(5000, 4000);
    fixture_->window->close();
    fixture_->MakeWindow();
    fixture_->window->show();
    const QRect screen = fixture_->window->screen()->availableGeometry();
    // Where a hand takes hold of it.
    QRect top = fixture_->window->geometry();
    top.setHeight(20);
    QCOMPARE(screen.intersected(top).height(), top.height());
    QVERIFY(screen.intersected(top).width() > 300);
  }

  void aClickOnALayerGoesToItsRow() {
    fixture_->Choose("TIPO_PARETE_DOPPIA_0");
    fixture_->window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture_->window.get()));
    auto* section = fixture_->Find<QWidget>("Disegno");
    QCOMPARE(section->accessibleName(), QString("Schema struttura"));
    QVERIFY(!section->accessibleDescription().isEmpty());
    // Along the middle of the drawing the first strip begins at the left, the last one ends at the right.
    QTest::mouseClick(section, Qt::LeftButton, {}, {section->width() * 3 / 4, section->height() / 3});
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("Combo4_0"));
    section->setFocus();
    QTest::keyClick(section, Qt::Key_Right);
    QVERIFY2(section->accessibleDescription().startsWith("1 Mattone pieno"),
             qPrintable(section->accessibleDescription()));
    QTest::keyClick(section, Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("Combo3_0"));
  }

  void aRowIsLitByItsLayerInTheSection() {
    fixture_->Choose(kSingleGeneric);
    auto* section = fixture_->Find<QWidget>("Disegno");
    const auto lit = [this] {
      int count = 0;
      for (const auto* label : fixture_->Find<QWidget>("SSTab1")->findChildren<QWidget*>())
        count += label->backgroundRole() == QPalette::Highlight && label->autoFillBackground() ? 1 : 0;
      return count;
    };
    QCOMPARE(lit(), 0);
    // Where the drawing stands in its view depends on what is written beside it.
    for (int x = 0; x < section->width() && lit() == 0; x += 4)
      QTest::mouseMove(section, {x, section->height() / 2});
    QCOMPARE(lit(), 1);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(section, &leave);
    QCOMPARE(lit(), 0);
  }

 private:
  std::unique_ptr<WindowFixture> fixture_;
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::WindowRulesTest)
#include "window_rules_test.moc"
