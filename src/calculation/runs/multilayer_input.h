#pragma once

#include <variant>
#include <vector>

#include "calculation/runs/run.h"
#include "elements/setup.h"
#include "models/layered/layered_element.h"

namespace velmar::calculation {

/// A free list of layers as the layered model takes it, with the rows that its parts came from.
struct MultilayerInput {
  models::LayeredElement element{};
  std::vector<std::vector<int>> leaf_rows{};    ///< of each leaf: the row of each of its layers
  std::vector<std::vector<int>> cavity_rows{};  ///< of each cavity: the row of each of its fills
};

/// The element that `setup` describes, or why its rows are none: the list begins and ends with a leaf, has
/// one to four of them, a core or an interlayer between two plates that are a leaf with it, a profiled sheet
/// as a leaf by itself, plates of one leaf all bonded or all loose. Plates of a leaf from models::kHeavyLeaf
/// on are masonry and plaster, which are bonded whatever the rows say.
///
/// A pane alone in its leaf is laminated where IsLaminatedPane() says so. Fibre of unknown flow resistance
/// counts as mineral wool of 14 kPa·s/m² and 40 kg/m³. Between panes alone the air loses energy as in
/// glazing, else as between frames.
/// @throws FieldFailure when a field holds no number
std::variant<MultilayerInput, Refusal> MultilayerInputOf(const elements::Setup& setup);

/// A fill of which nobody says more than that it is fibre: mineral wool.
inline constexpr double kUsualFlowResistivity = 14000.0;  ///< Pa·s/m²
inline constexpr double kUsualFibreDensity = 40.0;        ///< kg/m³

/// One sheet of a set-up in SI units, of no kind yet.
models::SolidLayer SolidLayerOf(const elements::StructuralMaterial& slot);
/// One sheet of fibre; what is not above 0 of its flow resistivity and density is that of mineral wool.
models::CavityFill FibreFill(double thickness_m, double flow_resistivity_pa_s_m2, double density_kg_m3);
models::CavityFill FibreFillOf(const elements::FibrousMaterial& slot);

/// Whether `pane` is a laminated pane that was entered as one plate: glass with a loss factor of 0.01 and
/// more.
bool IsLaminatedPane(const models::SolidLayer& pane);
/// What such a pane is: two equal plies of float glass on 0.76 mm, acoustic from a loss factor of 0.05 on. As
/// one plate it would come out some 4 dB too low.
models::LaminatedPane LaminatedPaneOf(const models::SolidLayer& pane);

/// How a message begins that is about row `row`: "Strato 3: ", the number as every page has it, or "Aria: ".
MessageLine StratumInWords(const elements::Setup& setup, int row);

/// "spessore = 6000: il valore deve essere compreso tra 0 e 5000".
MessageLine OutOfRange(MessageRow name, double value, double lowest, double highest);

/// What the model said of `input`, with the field and in words.
Refusal ExplainRefusal(const elements::Setup& setup, const MultilayerInput& input,
                       const models::LayeredRefusal& refusal);

}  // namespace velmar::calculation
