#include "presentation/drawing/material_kind.h"

#include <gtest/gtest.h>

namespace velmar::presentation {
namespace {

using enum MaterialKind;

struct Named {
  const char* name;
  MaterialKind kind;
};

class StructuralKindTest : public testing::TestWithParam<Named> {};

TEST_P(StructuralKindTest, IsToldByTheName) {
  EXPECT_EQ(StructuralKind(GetParam().name, 1000.0), GetParam().kind) << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(
    Names, StructuralKindTest,
    testing::Values(Named{"Mattone forato", kBrick}, Named{"LATERIZIO PORIZZATO", kBrick},
                    Named{"Muratura in laterizio intonacata", kBrick}, Named{"Intonaco di gesso", kPlaster},
                    Named{"Intonaco di calce e cemento", kPlaster}, Named{"Calcestruzzo armato", kConcrete},
                    Named{"Blocco porizzato 30 cm", kBrick}, Named{"Doppio UNI 12 cm", kBrick},
                    Named{"Forati in laterizio 8 cm", kBrick}, Named{"Tavolato in legno di conifera", kWood},
                    Named{"Solaio in laterocemento 20+4 cm", kConcrete}, Named{"X-LAM 5 strati 10 cm", kWood},
                    Named{"Solaio a predalle 4+16+4 cm", kConcrete}, Named{"Parquet di rovere", kWood},
                    Named{"Solaio in legno lamellare accostato", kWood}, Named{"Tegole in laterizio", kBrick},
                    Named{"Massetto in gesso", kScreed}, Named{"Cartongesso standard", kPlasterboard},
                    Named{"Blocco di gesso", kPlasterboard}, Named{"Vetro float", kGlass},
                    Named{"Vetro cellulare", kFoam}, Named{"Lana di vetro 24", kWool},
                    Named{"Pannello legno-cemento", kWood}, Named{"OSB", kWood}, Named{"Acciaio", kMetal},
                    Named{"Lamina smorzante", kDamping}, Named{"Gomma espansa", kResilient},
                    Named{"Marmo", kStone}));

TEST(StructuralKind, OfAnUnknownNameGoesByDensity) {
  EXPECT_EQ(StructuralKind("Prodotto X", 40.0), kFoam);
  EXPECT_EQ(StructuralKind("Prodotto X", 1000.0), kGeneric);
  EXPECT_EQ(StructuralKind("Prodotto X", 8000.0), kMetal);
  EXPECT_EQ(StructuralKind("", 0.0), kGeneric);
}

TEST(FillingKind, IsWoolUnlessTheNameSaysOtherwise) {
  EXPECT_EQ(FillingKind("Canapa"), kWool);
  EXPECT_EQ(FillingKind("Polistirene espanso (EPS)"), kFoam);
  EXPECT_EQ(FillingKind("Sughero in pannelli"), kWood);
  EXPECT_EQ(ResilientKind("Lana di roccia anticalpestio 30 mm, 60 kg/m3"), kWool);
  EXPECT_EQ(ResilientKind("EPS 50 mm"), kResilient);
}

}  // namespace
}  // namespace velmar::presentation
