#include "shell/material_editors/structural_editor.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <set>

#include <gmock/gmock.h>

#include "tests/shell/material_editors/structural_editor_fixture.h"

namespace velmar::material_editors {
namespace {

using elements::MaterialFamily;
using elements::StructuralMaterial;
using storage::StructuralRow;

TEST_F(StructuralEditorTest, ANewMaterialStartsEmptyWithTheFocusOnItsName) {
  Open();
  Picture(*window_, "form5-nuovo");
  EXPECT_EQ(window_->windowTitle(), "Materiale parete");
  for (const char* box : {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7", "Text8", "Text9"})
    EXPECT_EQ(Shown(*window_, box), "") << box;
  EXPECT_EQ(Child<QComboBox>(*window_, "Text10").currentText(), "");
  EXPECT_EQ(Focused(), "Text1");
}

TEST_F(StructuralEditorTest, EveryCaptionEndsWithAColon) {
  Open();
  int captions = 0;
  for (const QLabel* label : window_->findChildren<QLabel*>()) {
    if (label->buddy() == nullptr) continue;
    ++captions;
    EXPECT_TRUE(label->text().endsWith(':') && !label->text().endsWith("::")) << label->text().toStdString();
    EXPECT_FALSE(label->buddy()->accessibleName().endsWith(':'));
  }
  EXPECT_EQ(captions, 11);
}

TEST_F(StructuralEditorTest, StoresANewMaterial) {
  Open();
  FillIn();
  Save();
  EXPECT_TRUE(told_.isEmpty()) << told_.join('|').toStdString();
  ASSERT_TRUE(window_->Change());
  EXPECT_EQ(window_->Change()->family, MaterialFamily::kStructural);
  EXPECT_EQ(window_->Change()->old_name, "");
  EXPECT_EQ(window_->Change()->name, "Gesso");
  EXPECT_EQ(window_->Change()->keyword, "non specificata");
  EXPECT_FALSE(window_->isVisible());
  const auto row = Stored("Gesso");
  ASSERT_TRUE(row);
  EXPECT_EQ(row->record.values.thickness_mm, 12.5);
  EXPECT_EQ(row->record.values.surface_mass_kg_m2, 11.25);
  EXPECT_EQ(row->record.values.youngs_modulus_gpa, 2.5);
  EXPECT_EQ(row->record.values.critical_frequency_hz, 0.0);
  EXPECT_EQ(row->record.values.poissons_ratio, 0.0);
}

TEST_F(StructuralEditorTest, ThePointIsTypedAsAComma) {
  Open();
  Type(*window_, "Text6", "2.5");
  EXPECT_EQ(Shown(*window_, "Text6"), "2,5");
}

TEST_F(StructuralEditorTest, TheKeyboardAloneFillsInAndSaves) {
  Open();
  const char* texts[] = {"Gesso", "lastra", "12,5", "900", "", "2,5", "", "0,01"};
  for (const char* text : texts) {
    QTest::keyClicks(window_->focusWidget(), text);
    QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(Focused(), "Text9");
  QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  QTest::keyClicks(window_->focusWidget(), "lastre");
  QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  ASSERT_TRUE(Stored("Gesso")) << told_.join('|').toStdString();
  EXPECT_EQ(Stored("Gesso")->record.values.description, "lastra");
  EXPECT_EQ(Stored("Gesso")->keyword, "lastre");
}

TEST_F(StructuralEditorTest, EnterTakesTheBoxInHandIntoAccount) {
  Open();
  FillIn();
  Type(*window_, "Text5", "");
  auto& density = Child<QLineEdit>(*window_, "Text4");
  QTest::mouseClick(&density, Qt::LeftButton);
  density.selectAll();
  QTest::keyClicks(&density, "800");
  QTest::keyClick(&density, Qt::Key_Return);
  ASSERT_TRUE(Stored("Gesso")) << told_.join('|').toStdString();
  EXPECT_EQ(Stored("Gesso")->record.values.surface_mass_kg_m2, 10.0);
}

struct Coupled {
  const char* name;
  const char* thickness;
  const char* density;
  const char* mass;
  const char* left;  ///< the box that is typed last
  const char* value;
  QStringList after;
};

class CoupledBoxesTest : public StructuralEditorTest, public testing::WithParamInterface<Coupled> {};

TEST_P(CoupledBoxesTest, FollowWhenTheBoxIsLeft) {
  Open();
  const Coupled& row = GetParam();
  Child<QLineEdit>(*window_, "Text3").setText(row.thickness);
  Child<QLineEdit>(*window_, "Text4").setText(row.density);
  Child<QLineEdit>(*window_, "Text5").setText(row.mass);
  Type(*window_, row.left, row.value);
  EXPECT_EQ((QStringList{Shown(*window_, "Text3"), Shown(*window_, "Text4"), Shown(*window_, "Text5")}),
            row.after);
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, CoupledBoxesTest,
    testing::Values(
        Coupled{"ThicknessGivesDensity", "", "", "150", "Text3", "100", {"100", "1500,00", "150"}},
        Coupled{"ThicknessGivesMass", "", "900", "", "Text3", "12.5", {"12,5", "900", "11,25"}},
        Coupled{"ThicknessRenewsMass", "9", "900", "8", "Text3", "10", {"10", "900", "9,00"}},
        Coupled{"DensityGivesThickness", "", "", "240", "Text4", "2400", {"100,00", "2400", "240"}},
        Coupled{"DensityGivesMass", "100", "", "", "Text4", "2400", {"100", "2400", "240,00"}},
        Coupled{"MassGivesDensity", "100", "", "", "Text5", "240", {"100", "2400,00", "240"}},
        Coupled{"MassGivesThickness", "", "2400", "", "Text5", "240", {"100,00", "2400", "240"}},
        Coupled{"MassRenewsThickness", "1", "2400", "1", "Text5", "240", {"100,00", "2400", "240"}},
        Coupled{"ThicknessZeroGivesMassZero", "", "900", "", "Text3", "0", {"0", "900", "0,00"}},
        Coupled{"NegativeCountsAsItsMagnitude", "", "900", "", "Text3", "-10", {"-10", "900", "9,00"}},
        Coupled{"OneAloneGivesNothing", "", "", "", "Text4", "900", {"", "900", ""}}),
    [](const auto& test) { return test.param.name; });

TEST_F(StructuralEditorTest, PassingThroughRoundsNothingButFillsWhatIsEmpty) {
  StructuralRow brick = Brick();
  brick.record.values.surface_mass_kg_m2 = 215.123;
  store_.Add<StructuralMaterial>({brick});
  Open("Mattone");
  for (int i = 0; i < 12; ++i) QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(Shown(*window_, "Text5"), "215,123");
  Child<QLineEdit>(*window_, "Text5").clear();
  Child<QLineEdit>(*window_, "Text3").setFocus();
  QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(Shown(*window_, "Text5"), "216,00");
}

TEST_F(StructuralEditorTest, ModifyShowsTheRow) {
  store_.Add<StructuralMaterial>({Brick()});
  Open("Mattone");
  Picture(*window_, "form5-modifica");
  const char* expected[] = {"Mattone", "pieno", "120", "1800", "216", "12,6", "209,5", "0,01", "0,2"};
  for (int i = 0; i < 9; ++i)
    EXPECT_EQ(Shown(*window_, ("Text" + std::to_string(i + 1)).c_str()), expected[i]) << i + 1;
  EXPECT_EQ(Child<QComboBox>(*window_, "Text10").currentText(), "murature");
}

TEST_F(StructuralEditorTest, SavingWithoutAChangeLeavesTheRowAsItWas) {
  StructuralRow brick = Brick();
  brick.record.values.density_kg_m3 = 1799.999987654321;
  brick.record.values.youngs_modulus_gpa = 0.1 + 0.2;
  brick.record.values.loss_factor = 1.0 / 3.0;
  brick.record.nulls.push_back(&StructuralMaterial::critical_frequency_hz);
  store_.Add<StructuralMaterial>({brick});
  const auto before = storage::CellsFromRow(*Stored("Mattone"));
  Open("Mattone");
  EXPECT_EQ(Shown(*window_, "Text6"), "0,3");
  EXPECT_EQ(Shown(*window_, "Text8"), "0,3333333");
  Save();
  EXPECT_FALSE(window_->isVisible());
  EXPECT_FALSE(window_->Change());
  EXPECT_EQ(storage::CellsFromRow(*Stored("Mattone")), before);
}

TEST_F(StructuralEditorTest, ChangingOneBoxKeepsTheOtherNumbersToTheLastDigit) {
  StructuralRow brick = Brick();
  brick.record.values.density_kg_m3 = 1799.999987654321;
  brick.record.values.loss_factor = 1.0 / 3.0;
  store_.Add<StructuralMaterial>({brick});
  Open("Mattone");
  Type(*window_, "Text7", "210");
  Save();
  const auto row = Stored("Mattone");
  EXPECT_EQ(row->record.values.critical_frequency_hz, 210.0);
  EXPECT_EQ(row->record.values.density_kg_m3, 1799.999987654321);
  EXPECT_EQ(row->record.values.loss_factor, 1.0 / 3.0);
  EXPECT_EQ(row->record.values.thermal_conductivity_w_mk, 0.8);
  EXPECT_EQ(row->source, "valore utente");
}

TEST_F(StructuralEditorTest, ModifyRenames) {
  store_.Add<StructuralMaterial>({Brick()});
  Open("Mattone");
  Type(*window_, "Text1", "Mattone nuovo");
  Save();
  EXPECT_EQ(window_->Change()->old_name, "Mattone");
  EXPECT_EQ(window_->Change()->name, "Mattone nuovo");
  EXPECT_FALSE(Stored("Mattone"));
  EXPECT_TRUE(Stored("Mattone nuovo"));
}

TEST_F(StructuralEditorTest, TheKeywordsInUseAreSuggested) {
  StructuralRow glass = Brick();
  glass.record.values.name = "Vetro";
  glass.keyword = "vetrate";
  store_.Add<StructuralMaterial>({Brick(), glass});
  Open();
  auto& keyword = Child<QComboBox>(*window_, "Text10");
  QStringList items;
  for (int i = 0; i < keyword.count(); ++i) items << keyword.itemText(i);
  EXPECT_EQ(items, (QStringList{"murature", "vetrate", "non specificata"}));
}

TEST_F(StructuralEditorTest, ANewKeywordIsNotReplacedByALongerOne) {
  store_.Add<StructuralMaterial>({Brick()});
  Open();
  FillIn();
  auto& keyword = Child<QComboBox>(*window_, "Text10");
  keyword.lineEdit()->setFocus();
  QTest::keyClicks(keyword.lineEdit(), "mur");
  Save();
  EXPECT_EQ(Stored("Gesso")->keyword, "mur");
}

TEST_F(StructuralEditorTest, EscapeClosesAtOnceWhenNothingWasTyped) {
  Open();
  QTest::keyClick(window_.get(), Qt::Key_Escape);
  EXPECT_TRUE(questions_.isEmpty());
  EXPECT_FALSE(window_->isVisible());
}

TEST_F(StructuralEditorTest, ClosingAsksBeforeTypedValuesAreThrownAway) {
  Open();
  Type(*window_, "Text2", "x");
  answer_ = false;
  QTest::keyClick(window_.get(), Qt::Key_Escape);
  Press(*window_, "Command2");
  window_->close();
  EXPECT_EQ(questions_.size(), 3);
  EXPECT_EQ(questions_.first(), "Le modifiche al materiale non sono state salvate. Chiudere senza salvarle?");
  EXPECT_TRUE(window_->isVisible());
  EXPECT_EQ(Shown(*window_, "Text2"), "x");
  answer_ = true;
  Press(*window_, "Command2");
  EXPECT_FALSE(window_->isVisible());
  EXPECT_FALSE(window_->Change());
  EXPECT_TRUE(store_.List(MaterialFamily::kStructural).empty());
}

TEST_F(StructuralEditorTest, EveryControlIsNamedAndEveryLetterLeadsToOnePlace) {
  Open();
  for (const auto* line : window_->findChildren<QLineEdit*>()) {
    const bool in_list = qobject_cast<QComboBox*>(line->parentWidget()) != nullptr;
    EXPECT_TRUE(in_list || !line->accessibleName().isEmpty()) << line->objectName().toStdString();
  }
  EXPECT_EQ(Child<QLineEdit>(*window_, "Text4").accessibleName(), "Densità [kg/m³]");
  std::multiset<QChar> letters;
  const auto count = [&](const QString& text) {
    const qsizetype mark = text.indexOf('&');
    ASSERT_GE(mark, 0) << text.toStdString();
    letters.insert(text.at(mark + 1).toLower());
  };
  for (const auto* label : window_->findChildren<QLabel*>())
    if (label->buddy() != nullptr) count(label->text());
  for (const auto* button : window_->findChildren<QPushButton*>()) count(button->text());
  EXPECT_EQ(letters.size(), 14U);
  EXPECT_EQ(std::set<QChar>(letters.begin(), letters.end()).size(), letters.size());
}

TEST_F(StructuralEditorTest, AltAndALetterReachABoxAndSave) {
  Open();
  FillIn();
  QTest::keyClick(window_->focusWidget(), Qt::Key_D, Qt::AltModifier);
  EXPECT_EQ(Focused(), "Text2");
  QTest::keyClick(window_->focusWidget(), Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !window_->isVisible(); }));
  EXPECT_TRUE(Stored("Gesso"));
}

TEST_F(StructuralEditorTest, TheSizeIsRemembered) {
  memory_ = std::make_unique<QSettings>(QString::fromStdString((folder_ / "finestre.ini").string()),
                                        QSettings::IniFormat);
  Open();
  window_->resize(780, 620);
  window_.reset();
  Open();
  EXPECT_EQ(window_->size(), QSize(780, 620));
}

TEST_F(StructuralEditorTest, FitsASmallScreen) {
  Open();
  EXPECT_LE(window_->minimumSizeHint().width(), 1366);
  EXPECT_LE(window_->sizeHint().height(), 700);
}

TEST_F(StructuralEditorTest, TheSourceIsShownAndCanBeTyped) {
  store_.Add<StructuralMaterial>({Brick()});
  Open("Mattone");
  EXPECT_EQ(Shown(*window_, "TextFonte"), "tabella");
  Type(*window_, "TextFonte", "certificato 12");
  Save();
  EXPECT_EQ(Stored("Mattone")->source, "certificato 12");
}

TEST_F(StructuralEditorTest, ACopyTakesTheNewValuesAndLeavesTheMaterialAsItWas) {
  store_.Add<StructuralMaterial>({Brick()});
  Open("Mattone");
  Type(*window_, "Text6", "9");
  Press(*window_, "CommandCopia");
  EXPECT_TRUE(told_.isEmpty()) << told_.join('|').toStdString();
  ASSERT_TRUE(window_->Change());
  EXPECT_EQ(window_->Change()->name, "Mattone (copia)");
  EXPECT_EQ(window_->Change()->old_name, "");
  EXPECT_EQ(Stored("Mattone")->record.values.youngs_modulus_gpa, 12.6);
  EXPECT_EQ(Stored("Mattone")->source, "tabella");
  const auto copy = Stored("Mattone (copia)");
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->record.values.youngs_modulus_gpa, 9.0);
  EXPECT_EQ(copy->record.values.thermal_conductivity_w_mk, 0.8);
  EXPECT_EQ(copy->source, "valore utente");
}

TEST_F(StructuralEditorTest, ANewMaterialHasNothingToCopy) {
  Open();
  EXPECT_FALSE(Child<QPushButton>(*window_, "CommandCopia").isVisible());
}

}  // namespace
}  // namespace velmar::material_editors
