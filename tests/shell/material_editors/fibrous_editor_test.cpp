#include "shell/material_editors/fibrous_editor.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <filesystem>
#include <memory>
#include <set>

#include <gmock/gmock.h>

#include "shell/material_editors/absorption_panel.h"
#include "tests/shell/material_editors/editor_fixture.h"

namespace velmar::material_editors {
namespace {

using elements::FibrousMaterial;
using elements::MaterialFamily;
using storage::FibrousRow;

FibrousRow Wool() {
  FibrousRow row;
  FibrousMaterial& wool = row.record.values;
  wool.name = "Lana";
  wool.description = "in pannelli";
  wool.thickness_mm = 60.0;
  wool.density_kg_m3 = 40.0;
  wool.porous = true;
  wool.flow_resistance_pa_s_m = 840.123456789;
  const float alfa[] = {0.027F, 0.056F, 0.106F, 0.173F, 0.265F, 0.386F, 0.533F, 0.676F, 0.811F, 0.917F,
                        0.976F, 0.996F, 0.983F, 0.959F, 0.949F, 0.974F, 1.05F,  0.987F, 0.995F};
  std::copy(std::begin(alfa), std::end(alfa), wool.absorption.begin());
  row.record.nulls = {&FibrousMaterial::youngs_modulus_gpa, &FibrousMaterial::loss_factor,
                      &FibrousMaterial::poissons_ratio};
  row.keyword = "lane minerali";
  return row;
}

FibrousRow Foam() {
  FibrousRow row;
  row.record.values.name = "Polistirene";
  row.record.values.thickness_mm = 40.0;
  row.record.values.density_kg_m3 = 20.0;
  row.record.values.youngs_modulus_gpa = 0.012;
  row.record.values.loss_factor = 0.02;
  row.record.values.poissons_ratio = 0.1;
  row.record.nulls = {&FibrousMaterial::flow_resistance_pa_s_m};
  return row;
}

class FibrousEditorTest : public EditorFixture {
 protected:
  FibrousEditor& Open(const char* name = "") {
    std::optional<FibrousRow> row;
    if (*name != '\0') row = store_.Find<FibrousMaterial>(name);
    window_ = std::make_unique<FibrousEditor>(
        Tools(), EditedMaterial<FibrousMaterial>(store_, texts_, std::move(row)),
        SuggestedKeywords(store_, MaterialFamily::kFibrous, texts_), std::filesystem::path());
    Show(*window_);
    return *window_;
  }
  void FillIn() {
    Type(*window_, "Text1", "Feltro");
    Type(*window_, "Text9", "50");
  }
  void Save() { Press(*window_, "Command1"); }
  void Choose(const char* option) { Child<QRadioButton>(*window_, option).click(); }
  std::optional<FibrousRow> Stored(const char* name) { return store_.Find<FibrousMaterial>(name); }
  std::string Focused() { return window_->focusWidget()->objectName().toStdString(); }
  QLineEdit& Alfa(int band) {
    return Child<QLineEdit>(*window_, ("TextAlfa_" + std::to_string(band)).c_str());
  }
  bool Enabled(const char* control) { return Child<QWidget>(*window_, control).isEnabled(); }
  std::vector<std::string> Coefficients() {
    std::vector<std::string> texts;
    for (int band = 0; band < 19; ++band) texts.push_back(Alfa(band).text().toStdString());
    return texts;
  }
  void Paste(const QString& text, int band) {
    QApplication::clipboard()->setText(text);
    Alfa(band).setFocus();
    QTest::keySequence(&Alfa(band), QKeySequence(QKeySequence::Paste));
  }
  const presentation::AbsorptionChart& Chart() {
    return dynamic_cast<AbsorptionView&>(Child<QWidget>(*window_, "Picture2")).Shown();
  }

  std::unique_ptr<FibrousEditor> window_;
};

QString Column(int count, const QString& separator) {
  QStringList cells;
  for (int i = 0; i < count; ++i) cells << QString("0,%1").arg(10 + i);
  return cells.join(separator);
}

TEST_F(FibrousEditorTest, ANewMaterialStartsWithItsDefaults) {
  Open();
  Picture(*window_, "form6-fibroso-nuovo");
  EXPECT_EQ(window_->windowTitle(), "Materiale fibroso");
  const std::pair<const char*, const char*> boxes[] = {{"Text1", ""},  {"Text2", ""},      {"Text10", "100"},
                                                       {"Text9", ""},  {"Text11", "0,05"}, {"Text12", "0,01"},
                                                       {"Text13", ""}, {"Text14", "4000"}};
  for (const auto& [box, text] : boxes) EXPECT_EQ(Shown(*window_, box), text) << box;
  EXPECT_EQ(Child<QComboBox>(*window_, "Text8").currentText(), "non specificata");
  EXPECT_TRUE(Child<QRadioButton>(*window_, "Option1_0").isChecked());
}

TEST_F(FibrousEditorTest, TheOptionEnablesTheBoxesThatCount) {
  Open();
  const char* porous[] = {"Text14", "TextAlfa_0", "TextAlfa_18", "CommandAlfa"};
  const char* solid[] = {"Text11", "Text12", "Text13"};
  for (const bool chosen : {true, false, true}) {
    Choose(chosen ? "Option1_0" : "Option1_1");
    for (const char* box : porous) EXPECT_EQ(Enabled(box), chosen) << box;
    for (const char* box : solid) EXPECT_EQ(Enabled(box), !chosen) << box;
  }
}

TEST_F(FibrousEditorTest, StoresAPorousMaterial) {
  Open();
  FillIn();
  Type(*window_, "TextAlfa_0", "0.15");
  Type(*window_, "TextAlfa_18", "1,05");
  Save();
  ASSERT_TRUE(window_->Change()) << told_.join('|').toStdString();
  EXPECT_EQ(window_->Change()->family, MaterialFamily::kFibrous);
  const auto row = Stored("Feltro");
  EXPECT_TRUE(row->record.values.porous);
  EXPECT_EQ(row->record.values.thickness_mm, 100.0);
  EXPECT_EQ(row->record.values.flow_resistance_pa_s_m, 4000.0);
  EXPECT_EQ(row->record.values.absorption[0], 0.15F);
  EXPECT_EQ(row->record.values.absorption[1], elements::kNoAbsorption);
  EXPECT_EQ(row->record.values.absorption[18], 1.05F);
  EXPECT_FALSE(row->record.Holds(&FibrousMaterial::youngs_modulus_gpa));
  EXPECT_EQ(row->picture, "senza");
}

TEST_F(FibrousEditorTest, ComputesTheEmptyBandsAndMarksThem) {
  Open();
  FillIn();
  Type(*window_, "Text10", "60");
  Type(*window_, "Text14", "840");
  Type(*window_, "TextAlfa_0", "0,5");
  Press(*window_, "CommandCalcola");
  EXPECT_EQ(Shown(*window_, "TextAlfa_0"), "0,5") << "what stands there stays";
  EXPECT_EQ(Shown(*window_, "TextAlfa_1"), "0,056");
  EXPECT_EQ(Shown(*window_, "TextAlfa_18"), "0,995");
  EXPECT_FALSE(Alfa(0).font().italic());
  EXPECT_TRUE(Alfa(1).font().italic());
  Type(*window_, "TextAlfa_18", "0,9");
  EXPECT_FALSE(Alfa(18).font().italic()) << "typed over";
  Picture(*window_, "form6-fibroso-calcolato");
  Save();
  const auto row = Stored("Feltro");
  ASSERT_TRUE(row) << told_.join('|').toStdString();
  EXPECT_EQ(row->record.values.absorption[1], 0.056F);
  EXPECT_TRUE(row->source.starts_with(
      "assorbimento calcolato con Delany e Bazley (incidenza normale, 60 mm su parete rigida): 125, 160, "))
      << row->source;
  EXPECT_EQ(row->source.find("6300"), std::string::npos) << row->source;
}

TEST_F(FibrousEditorTest, SaysWhenThereIsNothingToCompute) {
  Open();
  FillIn();
  Type(*window_, "Text14", "");
  Press(*window_, "CommandCalcola");
  ASSERT_EQ(told_.size(), 1);
  EXPECT_TRUE(told_.first().startsWith("Nessuna banda da calcolare"));
}

TEST_F(FibrousEditorTest, StoresASolidMaterialWithoutWhatItsOptionLeavesOut) {
  Open();
  FillIn();
  Type(*window_, "TextAlfa_0", "0,15");
  Choose("Option1_1");
  Save();
  const auto row = Stored("Feltro");
  ASSERT_TRUE(row) << told_.join('|').toStdString();
  EXPECT_FALSE(row->record.values.porous);
  EXPECT_EQ(row->record.values.youngs_modulus_gpa, 0.05);
  EXPECT_EQ(row->record.values.poissons_ratio, 0.0);
  EXPECT_FALSE(row->record.Holds(&FibrousMaterial::flow_resistance_pa_s_m));
  EXPECT_EQ(row->record.values.absorption, elements::UnknownAbsorption());
}

TEST_F(FibrousEditorTest, ModifyShowsTheRowAndChangesNothingByItself) {
  store_.Add<FibrousMaterial>({Wool(), Foam()});
  const auto wool = storage::CellsFromRow(*Stored("Lana"));
  const auto foam = storage::CellsFromRow(*Stored("Polistirene"));
  Open("Lana");
  Picture(*window_, "form6-fibroso-modifica");
  EXPECT_EQ(Shown(*window_, "Text14"), "840,1235");
  EXPECT_EQ(Shown(*window_, "Text11"), "");
  EXPECT_EQ(Alfa(0).text(), "0,027");
  EXPECT_EQ(Alfa(16).text(), "1,05");
  for (int i = 0; i < 40; ++i) QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  Save();
  EXPECT_EQ(storage::CellsFromRow(*Stored("Lana")), wool);
  Open("Polistirene");
  Picture(*window_, "form6-fibroso-solido");
  EXPECT_TRUE(Child<QRadioButton>(*window_, "Option1_1").isChecked());
  EXPECT_EQ(Shown(*window_, "Text11"), "0,012");
  Save();
  EXPECT_EQ(storage::CellsFromRow(*Stored("Polistirene")), foam);
}

TEST_F(FibrousEditorTest, ModifyClearsTheColumnsOfTheOtherCase) {
  store_.Add<FibrousMaterial>({Wool(), Foam()});
  Open("Lana");
  Choose("Option1_1");
  Type(*window_, "Text11", "0,1");
  Type(*window_, "Text12", "0,02");
  Save();
  auto row = Stored("Lana");
  EXPECT_FALSE(row->record.Holds(&FibrousMaterial::flow_resistance_pa_s_m));
  EXPECT_EQ(row->record.values.youngs_modulus_gpa, 0.1);
  EXPECT_EQ(row->record.values.absorption, elements::UnknownAbsorption());
  Open("Polistirene");
  Choose("Option1_0");
  Type(*window_, "Text14", "5000");
  Save();
  row = Stored("Polistirene");
  EXPECT_EQ(row->record.values.flow_resistance_pa_s_m, 5000.0);
  for (double FibrousMaterial::*field : {&FibrousMaterial::youngs_modulus_gpa, &FibrousMaterial::loss_factor,
                                         &FibrousMaterial::poissons_ratio})
    EXPECT_FALSE(row->record.Holds(field));
}

TEST_F(FibrousEditorTest, WhatItsOptionNeedsIsNamedWhenMissing) {
  Open();
  FillIn();
  Type(*window_, "Text14", "");
  Save();
  ASSERT_EQ(told_.size(), 1);
  EXPECT_TRUE(told_.first().endsWith("mancanti:\n- resistenza specifica al flusso Rs (Pa s/m)"));
  EXPECT_EQ(Focused(), "Text14");
  Choose("Option1_1");
  Type(*window_, "Text11", "");
  Type(*window_, "Text9", "");
  Save();
  EXPECT_TRUE(
      told_.last().endsWith(QString::fromUtf8("mancanti:\n- densità (kg/m³)\n- modulo di Young E (GPa)")));
  EXPECT_EQ(Focused(), "Text9");
}

TEST_F(FibrousEditorTest, AnImpossibleCoefficientIsToldWithItsBand) {
  Open();
  FillIn();
  for (const char* text : {"-0,1", "1,6", "E"}) {
    Alfa(3).setText(text);
    Save();
    EXPECT_EQ(told_.last().toStdString(),
              "Il materiale non può essere salvato: ogni coefficiente deve essere vuoto o compreso tra 0 e "
              "1,5.\nIl coefficiente di assorbimento deve essere compreso tra 0 e 1,5 alla "
              "frequenza di 200 Hz: " +
                  std::string(text));
    EXPECT_EQ(Focused(), "TextAlfa_3");
  }
  EXPECT_FALSE(Stored("Feltro"));
}

TEST_F(FibrousEditorTest, EveryBandTakesTheFocusOfItsCoefficient) {
  Open();
  FillIn();
  for (int band = 0; band < 19; ++band) {
    Child<QLineEdit>(*window_, "Text1").setFocus();
    Alfa(band).setText("2");
    Save();
    EXPECT_EQ(Focused(), "TextAlfa_" + std::to_string(band));
    EXPECT_EQ(Alfa(band).selectedText(), "2");
    Alfa(band).clear();
  }
  EXPECT_EQ(told_.size(), 19);
}

TEST_F(FibrousEditorTest, ATextThatIsNoNumberTakesTheFocus) {
  for (const char* box : {"Text9", "Text10", "Text14", "Text11", "Text12", "Text13"}) {
    told_.clear();
    Open();
    FillIn();
    Choose(box == std::string("Text14") ? "Option1_0" : "Option1_1");
    Child<QLineEdit>(*window_, "Text1").setFocus();
    Child<QLineEdit>(*window_, box).setText("1..2");
    Save();
    ASSERT_EQ(told_.size(), 1) << box;
    EXPECT_EQ(Focused(), box);
  }
}

TEST_F(FibrousEditorTest, TheBandsAreLabelled100To5000AndTheLast6000) {
  Open();
  QStringList labels;
  for (const auto* label : Child<QWidget>(*window_, "TextAlfa_0").parentWidget()->findChildren<QLabel*>())
    labels << label->text();
  ASSERT_EQ(labels.size(), 19);
  EXPECT_EQ(labels.first(), "100 Hz");
  EXPECT_EQ(labels.at(17), "5000 Hz");
  EXPECT_EQ(labels.at(18), "6000 Hz");
}

TEST_F(FibrousEditorTest, ClearingAsksFirst) {
  store_.Add<FibrousMaterial>({Wool()});
  Open("Lana");
  answer_ = false;
  Press(*window_, "CommandAlfa");
  EXPECT_EQ(questions_, QStringList{"Cancellare tutti i 19 coefficienti di assorbimento?"});
  EXPECT_EQ(Alfa(18).text(), "0,995");
  answer_ = true;
  Press(*window_, "CommandAlfa");
  EXPECT_THAT(Coefficients(), testing::Each(""));
}

class PasteTest : public FibrousEditorTest, public testing::WithParamInterface<const char*> {};

TEST_P(PasteTest, AColumnOf19FillsAllBoxes) {
  Open();
  Paste(Column(19, GetParam()) + "\n", 0);
  EXPECT_EQ(Alfa(0).text(), "0,10");
  EXPECT_EQ(Alfa(18).text(), "0,28");
  EXPECT_TRUE(told_.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Separators, PasteTest, testing::Values("\n", "\r\n", "\t", ";"));

TEST_F(FibrousEditorTest, APastedColumnReplacesWhatAFilledBoxHolds) {
  store_.Add<FibrousMaterial>({Wool()});
  Open("Lana");
  Paste("0.5\n0.6", 3);
  EXPECT_EQ(Alfa(2).text(), "0,106");
  EXPECT_EQ(Alfa(3).text(), "0,5");
  EXPECT_EQ(Alfa(4).text(), "0,6");
  EXPECT_EQ(Alfa(5).text(), "0,386");
}

TEST_F(FibrousEditorTest, APastedColumnSurvivesSaving) {
  Open();
  FillIn();
  Paste(Column(19, "\r\n"), 7);
  Save();
  EXPECT_EQ(Stored("Feltro")->record.values.absorption[0], 0.1F);
  EXPECT_EQ(Stored("Feltro")->record.values.absorption[18], 0.28F);
}

TEST_F(FibrousEditorTest, WhatIsNoColumnOfNumbersChangesNothing) {
  store_.Add<FibrousMaterial>({Wool()});
  Open("Lana");
  const auto before = Coefficients();
  Paste("alfa\n0,1\n0,2", 0);
  Paste(Column(20, "\n"), 0);
  Paste("0,1\n0,2", 18);
  ASSERT_EQ(told_.size(), 3);
  EXPECT_TRUE(told_.at(0).startsWith("I coefficienti non sono stati incollati: servono numeri"));
  EXPECT_TRUE(told_.at(1).endsWith("Valori negli appunti: 20"));
  EXPECT_EQ(Coefficients(), before);
}

TEST_F(FibrousEditorTest, ADroppedColumnIsTakenAsWell) {
  Open();
  Alfa(0).setFocus();
  Alfa(0).insert("0,1\n0,2\n0,3");
  EXPECT_EQ(Alfa(0).text(), "0,1");
  EXPECT_EQ(Alfa(2).text(), "0,3");
}

TEST_F(FibrousEditorTest, TheMenuOfABoxPastesAColumnAsWell) {
  store_.Add<FibrousMaterial>({Wool()});
  Open("Lana");
  QApplication::clipboard()->setText(Column(19, "\n"));
  Alfa(2).setFocus();
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(2, 2), Alfa(2).mapToGlobal(QPoint(2, 2)));
  QApplication::sendEvent(&Alfa(2), &event);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  for (QAction* action : menu->actions())
    if (action->text().contains("Paste")) action->trigger();
  menu->close();
  EXPECT_EQ(Alfa(0).text(), "0,10");
  EXPECT_EQ(Alfa(18).text(), "0,28");
}

TEST_F(FibrousEditorTest, ASingleNumberIsPastedAsUsual) {
  Open();
  Paste("0,4", 5);
  EXPECT_EQ(Alfa(5).text(), "0,4");
}

TEST_F(FibrousEditorTest, TheCurveFollowsEveryKey) {
  Open();
  EXPECT_FALSE(Chart().values[4]);
  Alfa(4).setFocus();
  QTest::keyClicks(&Alfa(4), "0,7");
  EXPECT_EQ(Chart().values[4], 0.7);
  QTest::keyClicks(&Alfa(4), "E9");
  EXPECT_FALSE(Chart().values[4]) << "a value off the scale is not drawn";
  Alfa(4).setText("0,7");
  Choose("Option1_1");
  EXPECT_FALSE(Chart().values[4]) << "a solid has no absorption";
  Choose("Option1_0");
  EXPECT_EQ(Chart().values[4], 0.7);
}

TEST_F(FibrousEditorTest, EnterGoesToTheNextBandAndSavesFromTheLast) {
  Open();
  FillIn();
  Alfa(0).setFocus();
  for (int band = 0; band < 19; ++band) {
    EXPECT_EQ(Focused(), "TextAlfa_" + std::to_string(band));
    QTest::keyClicks(window_->focusWidget(), "0,5");
    QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  }
  ASSERT_TRUE(Stored("Feltro"));
  EXPECT_EQ(Stored("Feltro")->record.values.absorption[18], 0.5F);
}

TEST_F(FibrousEditorTest, TabGoesAsOneReads) {
  Open();
  const char* order[] = {"Text1",  "Text2", "Text10",    "Text9",     "Option1_0",
                         "Text14", "Text8", "TextFonte", "TextAlfa_0"};
  for (const char* box : order) {
    EXPECT_EQ(Focused(), box);
    QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  }
}

TEST_F(FibrousEditorTest, ANameThatDiffersOnlyInCaseIsRefused) {
  store_.Add<FibrousMaterial>({Wool()});
  Open();
  FillIn();
  Type(*window_, "Text1", "LANA");
  Save();
  EXPECT_EQ(told_.size(), 1);
  EXPECT_EQ(Focused(), "Text1");
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(FibrousEditorTest, ClosingAsksBeforeACoefficientIsThrownAway) {
  Open();
  Type(*window_, "TextAlfa_7", "0,4");
  answer_ = false;
  QTest::keyClick(window_.get(), Qt::Key_Escape);
  EXPECT_EQ(questions_.size(), 1);
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(FibrousEditorTest, EveryControlIsNamed) {
  Open();
  for (const auto* line : window_->findChildren<QLineEdit*>()) {
    const bool in_list = qobject_cast<QComboBox*>(line->parentWidget()) != nullptr;
    EXPECT_TRUE(in_list || !line->accessibleName().isEmpty()) << line->objectName().toStdString();
  }
  EXPECT_EQ(Alfa(0).accessibleName(), "Coefficienti di assorbimento acustico 100 Hz");
  std::set<QChar> letters;
  for (const auto* button : window_->findChildren<QAbstractButton*>()) {
    const qsizetype mark = button->text().indexOf('&');
    ASSERT_GE(mark, 0);
    EXPECT_TRUE(letters.insert(button->text().at(mark + 1).toLower()).second);
  }
}

TEST_F(FibrousEditorTest, FitsASmallScreen) {
  Open();
  EXPECT_LE(window_->sizeHint().width(), 1300);
  EXPECT_LE(window_->sizeHint().height(), 700);
}

}  // namespace
}  // namespace velmar::material_editors
