#include <QLineEdit>
#include <filesystem>

#include <gmock/gmock.h>

#include "tests/shell/material_editors/structural_editor_fixture.h"

namespace velmar::material_editors {
namespace {

using elements::MaterialFamily;
using elements::StructuralMaterial;
using storage::StructuralRow;

TEST_F(StructuralEditorTest, AnEmptyNameIsRefusedFirst) {
  Open();
  Type(*window_, "Text1", "   ");
  Save();
  EXPECT_EQ(told_, QStringList{"Inserire il nome del materiale."});
  EXPECT_EQ(Focused(), "Text1");
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(StructuralEditorTest, EveryMissingValueIsNamed) {
  Open();
  Type(*window_, "Text1", "Gesso");
  Type(*window_, "Text3", "12,5");
  Save();
  EXPECT_EQ(told_, QStringList{"Il materiale non può essere salvato. Inserire i dati mancanti:\n"
                               "- densità (kg/m³)\n- massa superficiale m' (kg/m²)\n"
                               "- modulo di Young E (GPa)\n- fattore di perdita interno"});
  EXPECT_EQ(Focused(), "Text4");
  EXPECT_EQ(Shown(*window_, "Text3"), "12,5");
}

TEST_F(StructuralEditorTest, ATextThatIsNoNumberTakesTheFocus) {
  for (const char* box : {"Text3", "Text4", "Text5", "Text6", "Text7", "Text8", "Text9"}) {
    told_.clear();
    Open();
    FillIn();
    Child<QLineEdit>(*window_, "Text1").setFocus();
    Child<QLineEdit>(*window_, box).setText("dodici");
    Save();
    ASSERT_EQ(told_.size(), 1) << box;
    EXPECT_TRUE(told_.first().startsWith("Il materiale non è stato salvato."));
    EXPECT_TRUE(told_.first().endsWith("Non è un numero valido: dodici"));
    EXPECT_EQ(Focused(), box);
    EXPECT_TRUE(window_->isVisible());
    EXPECT_FALSE(Stored("Gesso"));
  }
}

TEST_F(StructuralEditorTest, LettersDoNotReachANumberBox) {
  Open();
  Type(*window_, "Text3", "1a2,,5x");
  EXPECT_EQ(Shown(*window_, "Text3"), "12,5");
}

TEST_F(StructuralEditorTest, ANameThatDiffersOnlyInCaseIsRefused) {
  StructuralRow row = Brick();
  row.record.values.name = "Città";
  store_.Add<StructuralMaterial>({row});
  Open();
  FillIn();
  Insert(*window_, "Text1", QString::fromUtf8("CITTÀ"));
  Save();
  EXPECT_EQ(told_,
            QStringList{"Nel database esiste già un materiale con questo nome. Scegliere un altro nome."});
  EXPECT_EQ(Focused(), "Text1");
  EXPECT_TRUE(window_->isVisible());
  EXPECT_EQ(store_.List(MaterialFamily::kStructural).size(), 1U);
  Type(*window_, "Text1", "Gesso");
  Save();
  EXPECT_TRUE(Stored("Gesso"));
}

TEST_F(StructuralEditorTest, ANameMayChangeItsOwnCase) {
  store_.Add<StructuralMaterial>({Brick()});
  Open("Mattone");
  Type(*window_, "Text1", "MATTONE");
  Save();
  EXPECT_EQ(Stored("Mattone")->record.values.name, "MATTONE");
}

TEST_F(StructuralEditorTest, ALeadingBlankAndASecondLineOfTheNameAreCutOff) {
  Open();
  FillIn();
  Child<QLineEdit>(*window_, "Text1").setText(" Gesso rosa\r\nseconda riga");
  Save();
  EXPECT_TRUE(Stored("Gesso rosa"));
}

TEST_F(StructuralEditorTest, ANameMayHoldQuotesAndPercent) {
  Open();
  FillIn();
  Type(*window_, "Text1", "L'\"altro\" 5%; --");
  Save();
  EXPECT_TRUE(Stored("L'\"altro\" 5%; --"));
}

TEST_F(StructuralEditorTest, AReadOnlyDatabaseIsToldAndNothingTypedIsLost) {
  Open();
  FillIn();
  namespace fs = std::filesystem;
  fs::permissions(store_.File(), fs::perms::owner_read);
  Save();
  ASSERT_EQ(told_.size(), 1);
  EXPECT_TRUE(told_.first().startsWith("Il materiale non è stato salvato"));
  EXPECT_GT(told_.first().count('\n'), 0);
  EXPECT_TRUE(window_->isVisible());
  EXPECT_EQ(Shown(*window_, "Text3"), "12,5");
  fs::permissions(store_.File(), fs::perms::owner_read | fs::perms::owner_write);
  Save();
  EXPECT_TRUE(Stored("Gesso"));
}

TEST_F(StructuralEditorTest, ALockedDatabaseIsToldAndTheSecondTrySaves) {
  Open();
  FillIn();
  WhileLocked([this] { Save(); });
  ASSERT_EQ(told_.size(), 1);
  EXPECT_TRUE(window_->isVisible());
  Save();
  EXPECT_TRUE(Stored("Gesso"));
}

TEST_F(StructuralEditorTest, AMissingOrDamagedDatabaseIsToldAndNothingTypedIsLost) {
  store_.Add<StructuralMaterial>({Brick()});
  for (const char* name : {"", "Mattone"}) {
    Open(name);
    FillIn();
    const std::string whole = storage::ReadFile(store_.File());
    std::filesystem::remove(store_.File());
    told_.clear();
    Save();
    ASSERT_EQ(told_.size(), 1);
    EXPECT_FALSE(std::filesystem::exists(store_.File()));
    storage::WriteFile(store_.File(), "SQLite format 3 no more");
    Save();
    ASSERT_EQ(told_.size(), 2);
    EXPECT_TRUE(told_.last().startsWith("Il materiale non è stato salvato"));
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(Shown(*window_, "Text1"), "Gesso");
    storage::WriteFile(store_.File(), whole);
  }
}

TEST_F(StructuralEditorTest, AMaterialThatIsGoneCanBeSavedAsNew) {
  store_.Add<StructuralMaterial>({Brick()});
  Open("Mattone");
  Type(*window_, "Text3", "150");
  store_.Delete(MaterialFamily::kStructural, "Mattone");
  answer_ = false;
  Save();
  EXPECT_EQ(questions_,
            QStringList{"Il materiale non è più nel database: Mattone\nUn altro programma lo ha eliminato o "
                        "rinominato. Salvare i valori inseriti come nuovo materiale?"});
  EXPECT_TRUE(window_->isVisible());
  EXPECT_EQ(Shown(*window_, "Text3"), "150");
  EXPECT_FALSE(Stored("Mattone"));
  answer_ = true;
  Save();
  EXPECT_EQ(Stored("Mattone")->record.values.thickness_mm, 150.0);
}

TEST_F(StructuralEditorTest, AMaterialRenamedElsewhereIsTold) {
  store_.Add<StructuralMaterial>({Brick()});
  Open("Mattone");
  Type(*window_, "Text3", "150");
  store_.Change<StructuralMaterial>("Mattone",
                                    [](StructuralRow& row) { row.record.values.name = "Mattone bis"; });
  answer_ = false;
  Save();
  EXPECT_EQ(questions_.size(), 1);
  EXPECT_TRUE(window_->isVisible());
  EXPECT_EQ(Stored("Mattone bis")->record.values.thickness_mm, 120.0);
}

TEST_F(StructuralEditorTest, AMaterialChangedElsewhereIsNotOverwrittenUnasked) {
  store_.Add<StructuralMaterial>({Brick()});
  Open("Mattone");
  Type(*window_, "Text7", "150");
  store_.Change<StructuralMaterial>("Mattone",
                                    [](StructuralRow& row) { row.record.values.loss_factor = 0.5; });
  answer_ = false;
  Save();
  ASSERT_EQ(questions_.size(), 1);
  EXPECT_EQ(Stored("Mattone")->record.values.loss_factor, 0.5);
  EXPECT_TRUE(window_->isVisible());
  answer_ = true;
  Save();
  EXPECT_EQ(Stored("Mattone")->record.values.loss_factor, 0.01);
  EXPECT_EQ(Stored("Mattone")->record.values.critical_frequency_hz, 150.0);
}

TEST_F(StructuralEditorTest, AnImpossibleValueIsRefusedWithItsBox) {
  Open();
  FillIn();
  Child<QLineEdit>(*window_, "Text9").setText("0,6");
  Save();
  ASSERT_EQ(told_.size(), 1);
  EXPECT_EQ(
      told_.first(),
      QString::fromUtf8("Il materiale non può essere salvato. Valori impossibili:\n- rapporto di Poisson: "
                        "0,6 (da 0 a 0,5)"));
  EXPECT_EQ(Focused(), "Text9");
  EXPECT_FALSE(Stored("Gesso"));
}

TEST_F(StructuralEditorTest, AnImprobableValueIsAskedAbout) {
  Open();
  FillIn();
  Child<QLineEdit>(*window_, "Text6").setText("4100");
  answer_ = false;
  Save();
  ASSERT_EQ(questions_.size(), 1);
  EXPECT_EQ(
      questions_.first(),
      QString::fromUtf8("Valori insoliti per un materiale da costruzione:\n- modulo di Young E (GPa): 4100 "
                        "(da 0,001 a 450)\nSalvarli comunque?"));
  EXPECT_TRUE(window_->isVisible());
  EXPECT_FALSE(Stored("Gesso"));
  answer_ = true;
  Save();
  EXPECT_TRUE(Stored("Gesso"));
}

}  // namespace
}  // namespace velmar::material_editors
