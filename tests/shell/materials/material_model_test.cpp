#include "shell/materials/material_model.h"

#include <gtest/gtest.h>

#include "tests/shell/materials/fake_source.h"

namespace velmar::shell {
namespace {

using elements::MaterialFamily;

class MaterialModelTest : public testing::Test {
 protected:
  MaterialModelTest() { model_.Fill(MaterialFamily::kStructural, materials_.Source().rows({})); }

  int Column(const QString& heading) const {
    for (int i = 0; i < model_.columnCount(); ++i) {
      if (model_.headerData(i, Qt::Horizontal, Qt::DisplayRole).toString() == heading) return i;
    }
    return -1;
  }
  QStringList Shown(const QString& heading) const {
    QStringList texts;
    for (int row = 0; row < shown_.rowCount(); ++row)
      texts << shown_.index(row, Column(heading)).data().toString();
    return texts;
  }

  FakeBoxes boxes_;
  FakeMaterials materials_;
  MaterialModel model_{boxes_.Tools()};
  MaterialSearch shown_{model_};
};

TEST_F(MaterialModelTest, HeadingsCarryTheUnitAndTheirTipsTheWords) {
  EXPECT_EQ(Column("Materiale"), 0);
  EXPECT_GT(Column("Densità (kg/m³)"), 0);
  EXPECT_EQ(model_.headerData(Column("E (GPa)"), Qt::Horizontal, Qt::ToolTipRole).toString(),
            "Modulo di Young [GPa]");
}

TEST_F(MaterialModelTest, EveryColumnOfEveryTableIsThere) {
  for (const MaterialFamily family :
       {MaterialFamily::kStructural, MaterialFamily::kFibrous, MaterialFamily::kResilient}) {
    model_.Fill(family, {});
    EXPECT_EQ(model_.Columns().size(), storage::TableOf(family).columns.size());
    for (const MaterialColumn& column : model_.Columns()) {
      EXPECT_FALSE(column.heading.isEmpty());
      EXPECT_FALSE(column.tip.isEmpty());
    }
  }
}

TEST_F(MaterialModelTest, NumbersHaveADecimalCommaAndNullIsEmpty) {
  EXPECT_EQ(Shown("Densità (kg/m³)"), (QStringList{"1800", "900", "1000", "99,5"}));
  EXPECT_EQ(Shown("η").front(), "0,015");
  EXPECT_EQ(Shown("E (GPa)").back(), "");
}

TEST_F(MaterialModelTest, NumbersSortAsNumbers) {
  shown_.sort(Column("Densità (kg/m³)"));
  EXPECT_EQ(Shown("Densità (kg/m³)"), (QStringList{"99,5", "900", "1000", "1800"}));
  shown_.sort(Column("Densità (kg/m³)"), Qt::DescendingOrder);
  EXPECT_EQ(Shown("Densità (kg/m³)"), (QStringList{"1800", "1000", "900", "99,5"}));
}

TEST_F(MaterialModelTest, NamesSortAsInADictionary) {
  shown_.sort(0);
  EXPECT_EQ(Shown("Materiale"),
            (QStringList{"Cartongesso", "Èlite 25", "intonaco di gesso", "Mattone pieno"}));
}

TEST_F(MaterialModelTest, RowsWithoutAValueStandLastInEitherDirection) {
  for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
    shown_.sort(Column("E (GPa)"), order);
    EXPECT_EQ(Shown("Materiale").back(), "Cartongesso");
    shown_.sort(Column("Parola chiave"), order);
    EXPECT_EQ(Shown("Materiale").back(), "Cartongesso");
  }
}

TEST_F(MaterialModelTest, TheSearchLooksInNameDescriptionAndKeyword) {
  const std::pair<const char*, QStringList> searches[] = {
      {"MATTONE", {"Mattone pieno"}},
      {"mur", {"Mattone pieno", "Èlite 25"}},
      {"mur èl", {"Èlite 25"}},
      {"catalogo gesso", {"intonaco di gesso", "Cartongesso"}},
      {"laboratorio", {}},  // the source of the values is not searched
      {"1800", {}},
      {"  ", {"Mattone pieno", "intonaco di gesso", "Èlite 25", "Cartongesso"}},
  };
  for (const auto& [text, names] : searches) {
    shown_.Search(QString::fromUtf8(text));
    EXPECT_EQ(Shown("Materiale"), names) << text;
  }
}

TEST_F(MaterialModelTest, AbsorptionStandsBandByBand) {
  model_.Fill(MaterialFamily::kFibrous, materials_.Source().rows(MaterialFamily::kFibrous));
  EXPECT_EQ(Shown("α 100"), (QStringList{"0,7", ""}));
  EXPECT_EQ(Shown("α 6300"), (QStringList{"0,7", ""}));
  EXPECT_EQ(Shown("Fonoassorb."), (QStringList{"Sì", "No"}));
}

}  // namespace
}  // namespace velmar::shell
