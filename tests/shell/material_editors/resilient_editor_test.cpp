#include "shell/material_editors/resilient_editor.h"

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <filesystem>
#include <memory>

#include <gmock/gmock.h>

#include "shell/windows/picture_view.h"
#include "tests/shell/material_editors/editor_fixture.h"

namespace velmar::material_editors {
namespace {

using elements::MaterialFamily;
using elements::ResilientMaterial;
using storage::ResilientRow;

ResilientRow Rubber() {
  ResilientRow row;
  row.record.values.name = "Gomma";
  row.record.values.description = "granuli";
  row.record.values.thickness_mm = 5.0;
  row.record.values.density_kg_m3 = 700.0;
  row.record.values.dynamic_stiffness_mn_m3 = 25.37;
  row.record.values.impact_improvement_db = 18.0;
  row.record.values.resonance_frequency_hz = 80.5912345678;
  row.keyword = "gomme";
  row.source = "prova";
  return row;
}

class ResilientEditorTest : public EditorFixture {
 protected:
  ResilientEditor& Open(const char* name = "", const std::filesystem::path& picture = {}) {
    std::optional<ResilientRow> row;
    if (*name != '\0') row = store_.Find<ResilientMaterial>(name);
    window_ = std::make_unique<ResilientEditor>(
        Tools(), EditedMaterial<ResilientMaterial>(store_, texts_, std::move(row)),
        SuggestedKeywords(store_, MaterialFamily::kResilient, texts_), picture);
    Show(*window_);
    return *window_;
  }
  void Save() { Press(*window_, "Command1"); }
  std::optional<ResilientRow> Stored(const char* name) { return store_.Find<ResilientMaterial>(name); }
  std::string Focused() { return window_->focusWidget()->objectName().toStdString(); }
  QStringList Three() {
    return {Shown(*window_, "Text3"), Shown(*window_, "Text4"), Shown(*window_, "Text5")};
  }

  std::unique_ptr<ResilientEditor> window_;
};

TEST_F(ResilientEditorTest, ANewMaterialStartsWithTheKeywordAndTheRule) {
  Open();
  Picture(*window_, "form6-resiliente-nuovo");
  EXPECT_EQ(window_->windowTitle(), "materiale resiliente");
  EXPECT_EQ(Child<QComboBox>(*window_, "Text8").currentText(), "non specificata");
  EXPECT_EQ(Three(), (QStringList{"", "", ""}));
  QStringList labels;
  for (const auto* label : window_->findChildren<QLabel*>()) labels << label->text();
  EXPECT_TRUE(labels.contains(
      QString::fromUtf8("Inserire almeno uno dei valori s', ΔLw e f0: gli altri sono calcolati "
                        "per un massetto di 100 kg/m² (f0: UNI EN 29052-1, ΔLw: 18,3 − 15 "
                        "lg(s'/M)).")));
  EXPECT_EQ(Child<QLabel>(*window_, "LabelDLw12354").text(),
            QString::fromUtf8("Secondo UNI EN ISO 12354-2, massetto di 100 kg/m²: ΔLw = -"));
  Type(*window_, "Text3", "10");
  EXPECT_EQ(Child<QLabel>(*window_, "LabelDLw12354").text(),
            QString::fromUtf8("Secondo UNI EN ISO 12354-2, massetto di 100 kg/m²: ΔLw = 32,6 dB"));
}

struct Coupled {
  const char* name;
  const char* box;
  const char* value;
  QStringList after;
};

class CoupledResilientTest : public ResilientEditorTest, public testing::WithParamInterface<Coupled> {};

TEST_P(CoupledResilientTest, TheOthersFollowWhenTheBoxIsLeft) {
  Open();
  Type(*window_, GetParam().box, GetParam().value);
  EXPECT_EQ(Three(), GetParam().after);
}

// s' = 25: f0 = 160 * sqrt(0.25) = 80; 18.3 - 15 lg(25 / 100) = 27.331
INSTANTIATE_TEST_SUITE_P(Boxes, CoupledResilientTest,
                         testing::Values(Coupled{"Stiffness", "Text3", "25", {"25", "27,3", "80,0"}},
                                         Coupled{"Improvement", "Text4", "33.3", {"10", "33,3", "50,6"}},
                                         Coupled{"Resonance", "Text5", "160", {"100", "18,3", "160"}},
                                         Coupled{"NegativeStiffness", "Text3", "-25", {"-25", "", ""}},
                                         Coupled{"NegativeImprovement", "Text4", "-3", {"", "-3", ""}},
                                         Coupled{"NegativeResonance", "Text5", "-80", {"", "", "-80"}},
                                         Coupled{"Zero", "Text3", "0", {"0", "", "0,0"}}),
                         [](const auto& test) { return test.param.name; });

TEST_F(ResilientEditorTest, ANegativeValueLeavesTheOtherBoxesAlone) {
  Open();
  Type(*window_, "Text3", "25");
  Type(*window_, "Text4", "-3");
  EXPECT_EQ(Three(), (QStringList{"25", "-3", "80,0"}));
}

TEST_F(ResilientEditorTest, StoresANewMaterialByOneOfTheThreeValues) {
  Open();
  Type(*window_, "Text1", "Sughero");
  Type(*window_, "Text5", "80");
  Type(*window_, "Text6", "10");
  Save();
  ASSERT_TRUE(window_->Change()) << told_.join('|').toStdString();
  EXPECT_EQ(window_->Change()->family, MaterialFamily::kResilient);
  EXPECT_EQ(window_->Change()->keyword, "non specificata");
  const auto row = Stored("sughero");
  EXPECT_EQ(row->record.values.dynamic_stiffness_mn_m3, 25.0);
  EXPECT_EQ(row->record.values.impact_improvement_db, 27.3);
  EXPECT_EQ(row->record.values.density_kg_m3, 0.0);
  EXPECT_EQ(row->picture, "senza");
}

TEST_F(ResilientEditorTest, WithoutAnyOfTheThreeValuesItIsRefused) {
  Open();
  Type(*window_, "Text1", "Sughero");
  Type(*window_, "Text6", "10");
  Save();
  EXPECT_EQ(told_,
            QStringList{QString::fromUtf8(
                "Il materiale non può essere salvato. Inserire almeno uno dei valori s', ΔLn,w e f0.")});
  EXPECT_EQ(Focused(), "Text3");
}

TEST_F(ResilientEditorTest, AMissingThicknessIsNamed) {
  Open();
  Type(*window_, "Text1", "Sughero");
  Type(*window_, "Text3", "10");
  Save();
  EXPECT_EQ(told_, QStringList{QString::fromUtf8("Il materiale non può essere salvato. Inserire i dati "
                                                 "mancanti:\n- spessore s (mm)")});
  EXPECT_EQ(Focused(), "Text6");
}

TEST_F(ResilientEditorTest, ATextThatIsNoNumberTakesTheFocus) {
  for (const char* box : {"Text3", "Text4", "Text5", "Text6", "Text7"}) {
    told_.clear();
    Open();
    Type(*window_, "Text1", "Sughero");
    Type(*window_, "Text3", "10");
    Type(*window_, "Text6", "10");
    Child<QLineEdit>(*window_, "Text1").setFocus();
    Child<QLineEdit>(*window_, box).setText("1..2");
    Save();
    ASSERT_EQ(told_.size(), 1) << box;
    EXPECT_TRUE(told_.first().endsWith("1..2"));
    EXPECT_EQ(Focused(), box);
  }
}

TEST_F(ResilientEditorTest, AnImpossibleValueTakesTheFocus) {
  Open();
  Type(*window_, "Text1", "Sughero");
  Type(*window_, "Text3", "10");
  Type(*window_, "Text6", "10");
  Child<QLineEdit>(*window_, "Text7").setText("-1");
  Save();
  ASSERT_EQ(told_.size(), 1);
  EXPECT_EQ(Focused(), "Text7");
  EXPECT_FALSE(Stored("Sughero"));
}

TEST_F(ResilientEditorTest, ModifyShowsTheRowAndChangesNothingByItself) {
  store_.Add<ResilientMaterial>({Rubber()});
  const auto before = storage::CellsFromRow(*Stored("Gomma"));
  Open("Gomma");
  Picture(*window_, "form6-resiliente-modifica");
  EXPECT_EQ(Three(), (QStringList{"25,37", "18", "80,59123"}));
  EXPECT_EQ(Shown(*window_, "Text7"), "700");
  EXPECT_EQ(Child<QComboBox>(*window_, "Text8").currentText(), "gomme");
  for (int i = 0; i < 10; ++i) QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(Three(), (QStringList{"25,37", "18", "80,59123"}));
  Save();
  EXPECT_FALSE(window_->isVisible());
  EXPECT_EQ(storage::CellsFromRow(*Stored("Gomma")), before);
}

TEST_F(ResilientEditorTest, AChangedDensityKeepsTheOtherNumbersToTheLastDigit) {
  store_.Add<ResilientMaterial>({Rubber()});
  Open("Gomma");
  Type(*window_, "Text7", "710");
  Save();
  const auto row = Stored("Gomma");
  EXPECT_EQ(row->record.values.density_kg_m3, 710.0);
  EXPECT_EQ(row->record.values.resonance_frequency_hz, 80.5912345678);
  EXPECT_EQ(row->source, "valore utente");
}

TEST_F(ResilientEditorTest, ANameThatDiffersOnlyInCaseIsRefused) {
  store_.Add<ResilientMaterial>({Rubber()});
  Open();
  Type(*window_, "Text1", "GOMMA");
  Type(*window_, "Text3", "10");
  Type(*window_, "Text6", "10");
  Save();
  EXPECT_EQ(told_.size(), 1);
  EXPECT_EQ(Focused(), "Text1");
}

TEST_F(ResilientEditorTest, ABrokenOrMissingPictureIsNoReasonForABox) {
  QImage(8, 8, QImage::Format_RGB32).save(QString::fromStdString((folder_ / "vera.png").string()));
  storage::WriteFile(folder_ / "rotta.jpg", "no picture");
  const std::pair<const char*, bool> pictures[] = {
      {"vera.png", true}, {"rotta.jpg", false}, {"manca.jpg", false}};
  for (const auto& [file, shown] : pictures) {
    Open("", folder_ / file);
    const auto* view = dynamic_cast<shell::PictureView*>(&Child<QWidget>(*window_, "Picture1"));
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->HasPicture(), shown) << file;
  }
  EXPECT_TRUE(told_.isEmpty());
}

}  // namespace
}  // namespace velmar::material_editors
