// Prints the spectra of some elements that pass through the hot loops, bit for bit.
#include <cstdio>
#include <vector>

#include "models/plates/diffuse_field.h"
#include "models/sea/leaf_transmission.h"
#include "models/sea/plate_radiation.h"
#include "tests/models/layered/sample_elements.h"
#include "tests/models/sea/random_elements.h"

namespace {

using namespace velmar::models;

template <typename Values>
void Print(const char* name, const Values& values) {
  std::printf("%s", name);
  for (const double value : values) std::printf(" %a", value);
  std::printf("\n");
}

void PrintDiffuseField(StackDice& dice, std::size_t plates) {
  std::vector<double> frequencies;
  for (double hz = 40.0; hz < 6000.0; hz *= 1.03) frequencies.push_back(hz);
  std::vector<Plate> stack;
  for (std::size_t i = 0; i < plates; ++i)
    stack.push_back({dice.Decades(5, 500), dice.Decades(50, 1e7), dice.Decades(1e-3, 0.1)});
  std::vector<double> taus(frequencies.size());
  DiffuseTau(frequencies, stack, Cavity{0.08, 0.04, 12000}, taus);
  Print("diffuse field", taus);
}

void PrintSeaLeaf(StackDice& dice) {
  SeaPlateInput input{.length_a_m = 4.0, .length_b_m = 2.8, .poissons_ratio = 0.2};
  input.sheets[0] = {dice.Decades(0.008, 0.3), dice.Decades(1e9, 4e10), dice.Decades(500, 2500)};
  const SeaPlate plate = SeaPlateRadiation(input);
  if (plate.fault != SeaPlateFault::kNone) return;
  HzSpectrum ratio{};
  SeaLeafPowerRatio(plate.radiation_efficiency,
                    {plate.longitudinal_speed_m_s, plate.surface_mass_kg_m2, plate.thickness_m, 0.02}, ratio);
  Print("radiation", plate.radiation_efficiency);
  Print("leaf", ratio);
}

/// Sides, fills, bridges and masses in the cavity.
void PrintSeaWalls(RandomElements& random) {
  Print("double wall", CalculateDoubleSeaWall(random.Double()).reduction_index_db);
  Print("lining", CalculateLining(random.Lining()).reduction_index_db);
}

void PrintStack(const LayeredElement& element) {
  const LayeredOutcome outcome = PredictLayered(element);
  if (const auto* prediction = std::get_if<LayeredPrediction>(&outcome))
    Print("layered", prediction->reduction_index_db);
}

}  // namespace

int main() {
  constexpr int kElements = 12;
  StackDice dice(7);
  RandomElements random(7);
  for (int i = 0; i < kElements; ++i) {
    PrintDiffuseField(dice, 1);
    PrintDiffuseField(dice, 2);
    PrintSeaLeaf(dice);
    PrintSeaWalls(random);
    PrintStack(dice.RollStack(dice.Whole(1, 4)));
  }
  PrintStack(BoardsOnSteelStuds());
}
