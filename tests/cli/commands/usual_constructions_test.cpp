// The usual Italian constructions that are shipped as examples: built from the shipped materials alone, and
// calculated without a question.
#include <algorithm>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "materials/keywords.h"
#include "storage/materials/material_store.h"
#include "storage/project/project_reader.h"
#include "tests/cli/spoken_command.h"

namespace velmar::cli {
namespace {

const storage::MaterialStore kShipped(SHIPPED "/Databases/Database/Database.mdb");

struct Usual {
  const char* example = "";
  const char* quantity = "";
  int rating = 0;
  const char* term = "";  ///< empty where the calculation gives none
  int term_value = 0;
};

void PrintTo(const Usual& usual, std::ostream* out) { *out << usual.example; }

class UsualConstructionTest : public testing::TestWithParam<Usual> {};

TEST_P(UsualConstructionTest, RunsWithoutAQuestionAndGivesItsRating) {
  Services services = BareServices();
  services.materials = storage::MaterialLookupIn(kShipped.File());
  const Said said = Speak({"run", Example(GetParam().example), "--json"}, services);
  ASSERT_EQ(said.code, 0) << said.errors;
  const nlohmann::json result = said.Json();
  EXPECT_TRUE(result["messages"].empty());
  EXPECT_EQ(result[GetParam().quantity], GetParam().rating);
  if (*GetParam().term != '\0') {
    EXPECT_EQ(result[GetParam().term], GetParam().term_value);
  }
}

/// Thickness apart, every value of a layer is that of the shipped row of its name, and the row is listed.
void ExpectShipped(const elements::StructuralMaterial& layer) {
  const auto row = kShipped.Find<elements::StructuralMaterial>(layer.name);
  ASSERT_TRUE(row) << layer.name;
  elements::StructuralMaterial values = row->record.values;
  values.thickness_mm = layer.thickness_mm;
  // Files of energy balances hold none of these.
  values.thermal_conductivity_w_mk = layer.thermal_conductivity_w_mk;
  EXPECT_EQ(layer, values) << layer.name;
  EXPECT_NE(row->keyword, materials::kOffTheListsKeyword) << layer.name;
}

TEST_P(UsualConstructionTest, TypesNoPropertyOfAMaterial) {
  storage::ProjectReadContext context;
  context.materials = storage::MaterialLookupIn(kShipped.File());
  const elements::Setup setup = storage::OpenProject(Example(GetParam().example), context).setup;
  int layers = 0;
  for (const elements::LeafLayers* leaf : {&setup.leaf1, &setup.leaf2}) {
    for (const auto& row : leaf->rows) {
      if (row.slot.name.empty()) continue;
      ExpectShipped(row.slot);
      ++layers;
    }
  }
  for (const elements::SeaLeaf* leaf : {&setup.sea_leaf1, &setup.sea_leaf2}) {
    for (const auto& row : leaf->rows) {
      if (row.slot.name.empty()) continue;
      ExpectShipped(row.slot);
      ++layers;
    }
  }
  for (const auto& row : setup.resilient.rows) {
    if (row.slot.name.empty()) continue;
    const auto shipped = kShipped.Find<elements::ResilientMaterial>(row.slot.name);
    ASSERT_TRUE(shipped) << row.slot.name;
    EXPECT_EQ(row.slot, shipped->record.values) << row.slot.name;
  }
  EXPECT_GT(layers, 0);
}

INSTANTIATE_TEST_SUITE_P(Usual, UsualConstructionTest,
                         testing::Values(Usual{"usuale-01-tramezzo-forati-8", "Rw", 39, "C", -1},
                                         Usual{"usuale-02-tramezzo-forati-12", "Rw", 41, "C", -1},
                                         Usual{"usuale-03-doppia-forati-8-8", "Rw", 46, "C", -3},
                                         Usual{"usuale-04-doppia-forati-12-8", "Rw", 47, "C", -1},
                                         Usual{"usuale-05-doppio-uni-25", "Rw", 47, "C", -2},
                                         Usual{"usuale-06-porizzato-25", "Rw", 46, "C", -2},
                                         Usual{"usuale-07-porizzato-30", "Rw", 47, "C", -2},
                                         Usual{"usuale-08-porizzato-incastro-38", "Rw", 48, "C", -2},
                                         Usual{"usuale-09-cassetta-doppio-uni-forati", "Rw", 49, "C", -2},
                                         Usual{"usuale-10-porizzato-20-tramezza-8", "Rw", 50, "C", -2},
                                         Usual{"usuale-11-aerato-25", "Rw", 49, "C", -2},
                                         Usual{"usuale-12-calcestruzzo-20", "Rw", 57, "C", -2},
                                         Usual{"usuale-13-cartongesso-una-lastra", "Rw", 47, "C", -1},
                                         Usual{"usuale-14-cartongesso-due-lastre", "Rw", 53, "C", -2},
                                         Usual{"usuale-15-cartongesso-orditura-doppia", "Rw", 65, "C", -3},
                                         Usual{"usuale-16-solaio-laterocemento-20-4", "Rw", 50, "C", -2},
                                         Usual{"usuale-17-calpestio-laterocemento-20-4", "Lnw", 44, "Ci", 2},
                                         Usual{"usuale-18-calpestio-predalle", "Lnw", 40, "Ci", 1},
                                         Usual{"usuale-19-calpestio-alveolare-20", "Lnw", 47, "Ci", 1},
                                         Usual{"usuale-20-solaio-x-lam-14", "Lnw", 56, "Ci", 2},
                                         Usual{"usuale-21-vetrocamera-stratificata", "Rw", 41, "C", -4},
                                         Usual{"usuale-22-controparete-su-forati-12", "Rw", 56, "", 0},
                                         Usual{"usuale-23-sea-cassetta", "Rw", 52, "C", -1}),
                         [](const auto& test) {
                           std::string name = test.param.example;
                           std::ranges::replace(name, '-', '_');
                           return name;
                         });

}  // namespace
}  // namespace velmar::cli
