#include "materials/copied_material.h"

#include <gtest/gtest.h>

#include "tests/storage/support/databases.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::materials {
namespace {

using elements::FibrousMaterial;
using elements::MaterialFamily;

class CopiedMaterialTest : public testing::Test {
 protected:
  CopiedMaterialTest() {
    storage::MakeTables(store_.File(), storage::MaterialTables());
    storage::FibrousRow wool;
    wool.record.values.name = "Lana";
    wool.record.values.density_kg_m3 = 40.0;
    wool.record.values.absorption[3] = 0.5F;
    wool.record.nulls = {&FibrousMaterial::poissons_ratio};
    wool.keyword = "lane";
    wool.picture = "lana.jpg";
    wool.source = "scheda";
    store_.Add<FibrousMaterial>({wool});
  }

  storage::TemporaryFolder folder_;
  storage::MaterialStore store_{folder_ / "Database.mdb"};
};

TEST_F(CopiedMaterialTest, HasAllValuesUnderAFreeName) {
  const auto copy = CopyMaterial(store_, MaterialFamily::kFibrous, "lana");
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->name, "Lana (2)");
  EXPECT_EQ(copy->keyword, "lane");
  const auto row = store_.Find<FibrousMaterial>("Lana (2)");
  ASSERT_TRUE(row);
  EXPECT_EQ(row->record.values.density_kg_m3, 40.0);
  EXPECT_EQ(row->record.values.absorption[3], 0.5F);
  EXPECT_FALSE(row->record.Holds(&FibrousMaterial::poissons_ratio)) << "an empty number stays empty";
  EXPECT_EQ(row->picture, "lana.jpg");
  EXPECT_EQ(row->source, "");
  EXPECT_EQ(store_.Find<FibrousMaterial>("Lana")->source, "scheda");
  EXPECT_EQ(CopyMaterial(store_, MaterialFamily::kFibrous, "Lana")->name, "Lana (3)");
}

TEST_F(CopiedMaterialTest, OfNothingIsNothing) {
  EXPECT_FALSE(CopyMaterial(store_, MaterialFamily::kFibrous, "Sughero"));
  EXPECT_FALSE(CopyMaterial(store_, MaterialFamily::kStructural, "Lana"));
  EXPECT_EQ(store_.List(MaterialFamily::kFibrous).size(), 1U);
}

}  // namespace
}  // namespace velmar::materials
