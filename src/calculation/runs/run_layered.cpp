#include <algorithm>
#include <array>
#include <string>

#include "calculation/runs/airborne_wall_rating.h"
#include "calculation/runs/family_runs.h"
#include "calculation/runs/multilayer_input.h"
#include "elements/layer_groups.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"

namespace velmar::calculation {
namespace {

using elements::Field;
using elements::LayerGroup;
using models::LayeredField;

enum class Place { kElement, kLeaf, kFill, kConnection };

/// What a field of the model is in a set-up.
struct FieldRow {
  LayeredField model{};
  Place place{};
  Field field{};
  MessageRow name{};
  double scale = 1.0;  ///< of the entered value in SI units
};

constexpr double kMillimetres = 1000.0;
constexpr double kGigapascals = 1e-9;
constexpr std::array kFields = {
    FieldRow{LayeredField::kWidth, Place::kElement, Field::kWidth, kWidthValueRow},
    FieldRow{LayeredField::kHeight, Place::kElement, Field::kHeight, kHeightValueRow},
    FieldRow{LayeredField::kBayWidth, Place::kElement, Field::kConnectionNumber, kConnectionValueRow, 100.0},
    FieldRow{LayeredField::kThickness, Place::kLeaf, Field::kThickness, kThicknessValueRow, kMillimetres},
    FieldRow{LayeredField::kDensity, Place::kLeaf, Field::kDensity, kDensityValueRow},
    FieldRow{LayeredField::kYoungsModulus, Place::kLeaf, Field::kYoungsModulus, kYoungsModulusValueRow,
             kGigapascals},
    FieldRow{LayeredField::kPoissonsRatio, Place::kLeaf, Field::kPoissonsRatio, kPoissonsRatioValueRow},
    FieldRow{LayeredField::kLossFactor, Place::kLeaf, Field::kLossFactor, kLossFactorValueRow},
    FieldRow{LayeredField::kInterlayerThickness, Place::kLeaf, Field::kStratumThickness, kThicknessValueRow,
             kMillimetres},
    FieldRow{LayeredField::kCoreThickness, Place::kLeaf, Field::kThickness, kThicknessValueRow, kMillimetres},
    FieldRow{LayeredField::kCoreDensity, Place::kLeaf, Field::kDensity, kDensityValueRow},
    FieldRow{LayeredField::kCoreShearModulus, Place::kLeaf, Field::kYoungsModulus, kYoungsModulusValueRow,
             kGigapascals},
    FieldRow{LayeredField::kCoreCompressionModulus, Place::kLeaf, Field::kYoungsModulus,
             kYoungsModulusValueRow, kGigapascals},
    FieldRow{LayeredField::kCoreLossFactor, Place::kLeaf, Field::kLossFactor, kLossFactorValueRow},
    FieldRow{LayeredField::kSurfaceMass, Place::kLeaf, Field::kDensity, kDensityValueRow},
    FieldRow{LayeredField::kBendingStiff, Place::kLeaf, Field::kProfileHeight, kProfileHeightRow},
    FieldRow{LayeredField::kBendingSoft, Place::kLeaf, Field::kProfilePitch, kProfilePitchRow},
    FieldRow{LayeredField::kFillThickness, Place::kFill, Field::kStratumThickness, kThicknessValueRow,
             kMillimetres},
    FieldRow{LayeredField::kFlowResistivity, Place::kFill, Field::kFlowResistance, kFlowResistivityValueRow},
    FieldRow{LayeredField::kFillDensity, Place::kFill, Field::kDensity, kDensityValueRow},
    FieldRow{LayeredField::kConnectionDensity, Place::kConnection, Field::kConnectionNumber,
             kConnectionValueRow},
};

/// The row of the list that `refusal` is about; -1 where it is about the whole element.
int RowOfRefusal(const MultilayerInput& input, const models::LayeredRefusal& refusal, Place place) {
  const auto row_of = [&](const std::vector<std::vector<int>>& parts, std::size_t layer) {
    const std::vector<int>& rows = parts.at(refusal.part);
    return rows.at(std::min(layer, rows.size() - 1));
  };
  switch (place) {
    case Place::kElement:
      return -1;
    case Place::kLeaf:
      return row_of(input.leaf_rows, refusal.layer);
    case Place::kFill:
      return row_of(input.cavity_rows, refusal.layer);
    case Place::kConnection:
      return row_of(input.cavity_rows, 0);
  }
  return -1;
}

elements::FieldId FieldOf(const elements::Setup& setup, const FieldRow& field, int row) {
  elements::FieldId id{.field = field.field, .index = std::max(row, 0)};
  const bool of_row = field.field == Field::kConnectionNumber || field.field == Field::kProfileHeight ||
                      field.field == Field::kProfilePitch;
  if (row < 0 || of_row) return id;
  const elements::StratumKind kind = setup.multilayer.strata.at(static_cast<std::size_t>(row)).kind;
  if (elements::HasThicknessAlone(kind)) {
    id.field = Field::kStratumThickness;
    return id;
  }
  id.group = kind == elements::StratumKind::kFibre ? LayerGroup::kStratumFibre : LayerGroup::kStratumSolid;
  if (field.field == Field::kStratumThickness) id.field = Field::kThickness;
  return id;
}

}  // namespace

Refusal ExplainRefusal(const elements::Setup& setup, const MultilayerInput& input,
                       const models::LayeredRefusal& refusal) {
  const auto* field = std::ranges::find(kFields, refusal.field, &FieldRow::model);
  if (field == kFields.end()) field = kFields.begin();
  const int row = RowOfRefusal(input, refusal, field->place);
  MessageLine line;
  if (row >= 0) line = StratumInWords(setup, row);
  const MessageLine rule = OutOfRange(field->name, refusal.value * field->scale,
                                      refusal.lowest * field->scale, refusal.highest * field->scale);
  line.insert(line.end(), rule.begin(), rule.end());
  return {FieldOf(setup, *field, row), std::move(line)};
}

RunOutcome RunLayered(const RunRequest& request) {
  const auto read = MultilayerInputOf(request.setup);
  if (const auto* refusal = std::get_if<Refusal>(&read)) return Refused(*refusal);
  const MultilayerInput& input = std::get<MultilayerInput>(read);
  const models::LayeredOutcome outcome = models::PredictLayered(input.element);
  if (const auto* refusal = std::get_if<models::LayeredRefusal>(&outcome))
    return Refused(ExplainRefusal(request.setup, input, *refusal));
  elements::ResultSet result;
  result.spectrum = std::get<models::LayeredPrediction>(outcome).reduction_index_db;
  return RateWall(request, std::move(result), {});
}

}  // namespace velmar::calculation
