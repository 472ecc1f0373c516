#include "calculation/runs/multilayer_input.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "calculation/runs/entered_numbers.h"
#include "elements/layer_groups.h"
#include "elements/parts.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"

namespace velmar::calculation {
namespace {

using elements::CavityConnection;
using elements::Field;
using elements::FieldId;
using elements::LayerGroup;
using elements::Stratum;
using elements::StratumKind;

constexpr double kMetresPerMillimetre = 0.001;
constexpr double kMetresPerCentimetre = 0.01;
constexpr double kPascalPerGigapascal = 1e9;
constexpr double kLaminatedLossFactor = 0.01;
constexpr double kAcousticLossFactor = 0.05;
constexpr double kPlyYoungsModulusPa = 72e9;
constexpr double kPlyPoissonsRatio = 0.22;

Refusal RefusedRow(const elements::Setup& setup, int index, Field field, MessageRow why) {
  MessageLine line = StratumInWords(setup, index);
  line.emplace_back(why);
  return {{.field = field, .index = index}, std::move(line)};
}

double Millimetres(const std::string& text, Field field, int index) {
  return EnteredNumber(text, {.field = field, .index = index}) * kMetresPerMillimetre;
}

/// All sheets of a row as one layer.
models::SolidLayer AsOne(models::SolidLayer layer, int sheets) {
  layer.thickness_m *= sheets;
  return layer;
}

/// Rows `first` to before `last` of a free list form one leaf.
class LeafReader {
 public:
  LeafReader(const elements::Setup& setup, int first, int last) : setup_(setup), first_(first), last_(last) {}

  std::variant<models::LayeredLeaf, Refusal> Read(std::vector<int>& rows) {
    heavy_ = Mass() >= models::kHeavyLeaf;
    for (int i = first_; i < last_; ++i) {
      const StratumKind kind = At(i).kind;
      if (kind == StratumKind::kProfiledSheet) return Profiled(rows);
      if (kind != StratumKind::kPlate && kind != StratumKind::kBondedPlate) return Cored(rows);
    }
    return Plate(rows);
  }

 private:
  const Stratum& At(int index) const { return setup_.multilayer.strata.at(static_cast<std::size_t>(index)); }

  double Mass() const {
    double mass = 0.0;
    for (int i = first_; i < last_; ++i) {
      if (elements::TakesSolid(At(i).kind)) {
        mass += At(i).solid.slot.density_kg_m3 * At(i).solid.slot.thickness_mm * At(i).solid.multiplicity *
                kMetresPerMillimetre;
      }
    }
    return mass;
  }

  models::SolidLayer Solid(int index) const {
    models::SolidLayer layer = SolidLayerOf(At(index).solid.slot);
    layer.kind = models::KindOfSolid(layer.density_kg_m3, layer.youngs_modulus_pa, heavy_);
    return layer;
  }

  models::SolidLayer Whole(int index) const { return AsOne(Solid(index), At(index).solid.multiplicity); }

  std::variant<models::LayeredLeaf, Refusal> Profiled(std::vector<int>& rows) const {
    if (last_ - first_ != 1) return RefusedRow(setup_, first_, Field::kStratumKind, kProfiledSheetAloneRow);
    rows = {first_};
    const Stratum& stratum = At(first_);
    const double height_m = Millimetres(stratum.profile_height_text, Field::kProfileHeight, first_);
    const double pitch_m = Millimetres(stratum.profile_pitch_text, Field::kProfilePitch, first_);
    if (!(height_m > 0.0) || !(pitch_m > 0.0)) {
      const Field field = height_m > 0.0 ? Field::kProfilePitch : Field::kProfileHeight;
      return RefusedRow(setup_, first_, field, kProfileAboveZeroRow);
    }
    return models::LayeredLeaf(models::CorrugatedSheet(Whole(first_), height_m, pitch_m));
  }

  std::variant<models::LayeredLeaf, Refusal> Cored(std::vector<int>& rows) const {
    const int middle = first_ + 1;
    const auto is_plate = [&](int index) {
      return At(index).kind == StratumKind::kPlate || At(index).kind == StratumKind::kBondedPlate;
    };
    if (last_ - first_ != 3 || !is_plate(first_) || !is_plate(first_ + 2))
      return RefusedRow(setup_, first_, Field::kStratumKind, kCoreBetweenPlatesRow);
    rows = {first_, middle, first_ + 2};
    const Stratum& between = At(middle);
    if (between.kind == StratumKind::kCore) {
      const models::SolidLayer core = Whole(middle);
      return models::LayeredLeaf(models::SandwichPanel{
          Whole(first_),
          {core.thickness_m, core.density_kg_m3, core.youngs_modulus_pa / (2.0 * (1.0 + core.poissons_ratio)),
           core.youngs_modulus_pa, core.loss_factor},
          Whole(first_ + 2)});
    }
    models::Interlayer sheet =
        between.kind == StratumKind::kInterlayer ? models::kStandardInterlayer : models::kAcousticInterlayer;
    sheet.thickness_m = Millimetres(between.thickness_text, Field::kStratumThickness, middle);
    return models::LayeredLeaf(models::LaminatedPane{Whole(first_), sheet, Whole(first_ + 2)});
  }

  std::variant<models::LayeredLeaf, Refusal> Plate(std::vector<int>& rows) const {
    if (last_ - first_ == 1 && At(first_).solid.multiplicity == 1 && IsLaminatedPane(Solid(first_))) {
      rows.assign(3, first_);
      return models::LayeredLeaf(LaminatedPaneOf(Solid(first_)));
    }
    models::LayeredPlate plate{.joint = models::LeafJoint::kSlipping};
    // The first row has nothing before it: its kind tells how its own sheets hold together.
    const int telling = last_ - first_ > 1 ? first_ + 1 : first_;
    if (heavy_ || At(telling).kind == StratumKind::kBondedPlate) plate.joint = models::LeafJoint::kBonded;
    for (int i = first_; i < last_; ++i) {
      const bool follows = i > first_ || At(i).solid.multiplicity > 1;
      if (!heavy_ && follows && i >= telling && At(i).kind != At(telling).kind)
        return RefusedRow(setup_, i, Field::kStratumKind, kOneJointRow);
      for (int sheet = 0; sheet < At(i).solid.multiplicity; ++sheet) {
        plate.layers.push_back(Solid(i));
        rows.push_back(i);
      }
    }
    return models::LayeredLeaf(std::move(plate));
  }

  const elements::Setup& setup_;
  int first_;
  int last_;
  bool heavy_ = false;
};

models::CavityFill FillOf(const Stratum& stratum, int index) {
  if (stratum.kind == StratumKind::kAir) {
    return {.kind = models::FillKind::kAir,
            .thickness_m = Millimetres(stratum.thickness_text, Field::kStratumThickness, index)};
  }
  const elements::FibrousMaterial& slot = stratum.fibre.slot;
  return FibreFill(slot.thickness_mm * kMetresPerMillimetre * stratum.fibre.multiplicity,
                   stratum.flow_resistivity_pa_s_m2, slot.density_kg_m3);
}

/// What is entered of a connection: a distance in cm, or a number per m².
struct EnteredRange {
  double lowest = 0.0;
  double highest = 0.0;
};
constexpr EnteredRange kSpacingsCm = {10.0, 1000.0};
constexpr EnteredRange kPointsPerM2 = {0.01, 1000.0};

struct ConnectionRow {
  CavityConnection connection{};
  models::ConnectionKind kind{};
  double compliance = 0.0;
};
constexpr std::array kConnections = {
    ConnectionRow{CavityConnection::kWoodStuds, models::ConnectionKind::kLine, models::kWoodStudCompliance},
    ConnectionRow{CavityConnection::kSteelStuds, models::ConnectionKind::kLine, models::kSteelStudCompliance},
    ConnectionRow{CavityConnection::kResilient, models::ConnectionKind::kLine, models::kResilientCompliance},
    ConnectionRow{CavityConnection::kPoints, models::ConnectionKind::kPoint, 0.0}};

/// Adds what joins the leaves of the cavity that begins at row `index`.
/// @return the refusal of a distance or number out of its range
std::optional<Refusal> Connect(const elements::Setup& setup, int index, models::LayeredElement& element) {
  const Stratum& stratum = setup.multilayer.strata.at(static_cast<std::size_t>(index));
  const auto* row = std::ranges::find(kConnections, stratum.connection, &ConnectionRow::connection);
  if (row == kConnections.end()) return std::nullopt;
  const double number =
      EnteredNumber(stratum.connection_text, {.field = Field::kConnectionNumber, .index = index});
  const bool points = row->kind == models::ConnectionKind::kPoint;
  const EnteredRange& range = points ? kPointsPerM2 : kSpacingsCm;
  if (!(number >= range.lowest && number <= range.highest)) {
    MessageLine line = StratumInWords(setup, index);
    const MessageLine rule = OutOfRange(points ? kConnectionsPerSquareMetreRow : kConnectionSpacingRow,
                                        number, range.lowest, range.highest);
    line.insert(line.end(), rule.begin(), rule.end());
    return Refusal{{.field = Field::kConnectionNumber, .index = index}, std::move(line)};
  }
  const double spacing_m = number * kMetresPerCentimetre;
  const double density = points ? number : 1.0 / spacing_m;
  element.cavities.back().connections.push_back({row->kind, density, row->compliance});
  if (stratum.connection != CavityConnection::kWoodStuds) return std::nullopt;
  const bool narrower = element.bay_width_m == 0.0 || spacing_m < element.bay_width_m;
  if (narrower) element.bay_width_m = spacing_m;
  return std::nullopt;
}

bool IsGlassAlone(const models::LayeredLeaf& leaf) {
  const auto is_glass = [](const models::SolidLayer& layer) {
    return layer.kind == models::SolidKind::kGlass;
  };
  if (const auto* pane = std::get_if<models::LaminatedPane>(&leaf)) return is_glass(pane->outer);
  const auto* plate = std::get_if<models::LayeredPlate>(&leaf);
  return plate != nullptr && std::ranges::all_of(plate->layers, is_glass);
}

}  // namespace

models::SolidLayer SolidLayerOf(const elements::StructuralMaterial& slot) {
  return {.thickness_m = slot.thickness_mm * kMetresPerMillimetre,
          .density_kg_m3 = slot.density_kg_m3,
          .youngs_modulus_pa = slot.youngs_modulus_gpa * kPascalPerGigapascal,
          .poissons_ratio = slot.poissons_ratio,
          .loss_factor = slot.loss_factor};
}

models::CavityFill FibreFillOf(const elements::FibrousMaterial& slot) {
  const double thickness_m = slot.thickness_mm * kMetresPerMillimetre;
  return FibreFill(thickness_m, thickness_m > 0.0 ? slot.flow_resistance_pa_s_m / thickness_m : 0.0,
                   slot.density_kg_m3);
}

models::CavityFill FibreFill(double thickness_m, double flow_resistivity_pa_s_m2, double density_kg_m3) {
  return {.kind = models::FillKind::kFibre,
          .thickness_m = thickness_m,
          .flow_resistivity_pa_s_m2 =
              flow_resistivity_pa_s_m2 > 0.0 ? flow_resistivity_pa_s_m2 : kUsualFlowResistivity,
          .density_kg_m3 = density_kg_m3 > 0.0 ? density_kg_m3 : kUsualFibreDensity};
}

bool IsLaminatedPane(const models::SolidLayer& pane) {
  return pane.kind == models::SolidKind::kGlass && pane.loss_factor >= kLaminatedLossFactor;
}

models::LaminatedPane LaminatedPaneOf(const models::SolidLayer& pane) {
  models::LaminatedPane laminated;
  if (pane.loss_factor >= kAcousticLossFactor) laminated.interlayer = models::kAcousticInterlayer;
  models::SolidLayer ply = pane;
  ply.thickness_m = std::max(0.0, pane.thickness_m - laminated.interlayer.thickness_m) / 2.0;
  ply.youngs_modulus_pa = kPlyYoungsModulusPa;
  ply.poissons_ratio = kPlyPoissonsRatio;
  laminated.outer = ply;
  laminated.inner = ply;
  return laminated;
}

MessageLine OutOfRange(MessageRow name, double value, double lowest, double highest) {
  return {name,
          " = " + FormatShortest(value) + ": ",
          kValueBetweenRow,
          " " + FormatShortest(lowest) + " ",
          kBetweenAndRow,
          " " + FormatShortest(highest)};
}

MessageLine StratumInWords(const elements::Setup& setup, int row) {
  const elements::StratumKind kind = setup.multilayer.strata.at(static_cast<std::size_t>(row)).kind;
  if (kind == elements::StratumKind::kAir) return {kAirStratumRow, std::string(": ")};
  const LayerGroup group =
      kind == elements::StratumKind::kFibre ? LayerGroup::kStratumFibre : LayerGroup::kStratumSolid;
  return {kLayerWithImpossibleDataRow, " " + std::to_string(elements::NumberOf(setup, group, row)) + ": "};
}

std::variant<MultilayerInput, Refusal> MultilayerInputOf(const elements::Setup& setup) {
  const elements::Multilayer& list = setup.multilayer;
  const int count = list.Count();
  MultilayerInput input;
  input.element.width_m = EnteredNumber(setup.width_text, {Field::kWidth});
  input.element.height_m = EnteredNumber(setup.height_text, {Field::kHeight});
  input.element.framed = list.framed;
  for (int i = 0; i < count;) {
    const Stratum& stratum = list.strata.at(static_cast<std::size_t>(i));
    if (elements::IsBetweenLeaves(stratum.kind)) {
      if (i == 0) return RefusedRow(setup, 0, Field::kStratumKind, kMultilayerEndsRow);
      if (list.BeginsCavity(i)) {
        input.element.cavities.emplace_back();
        input.cavity_rows.emplace_back();
        if (auto refusal = Connect(setup, i, input.element)) return std::move(*refusal);
      }
      if (stratum.kind == StratumKind::kFibre && !stratum.fibre.slot.porous) {
        return Refusal{{.field = Field::kMaterial, .group = LayerGroup::kStratumFibre, .index = i},
                       RefusedRow(setup, i, Field::kMaterial, kFillNotPorousRow).reason};
      }
      input.element.cavities.back().fills.push_back(FillOf(stratum, i));
      input.cavity_rows.back().push_back(i);
      ++i;
      continue;
    }
    int last = i;
    while (last < count && !elements::IsBetweenLeaves(list.strata.at(static_cast<std::size_t>(last)).kind))
      ++last;
    if (input.element.leaves.size() == models::kMostLeaves)
      return RefusedRow(setup, i, Field::kStratumKind, kMultilayerLeavesRow);
    std::vector<int>& rows = input.leaf_rows.emplace_back();
    auto leaf = LeafReader(setup, i, last).Read(rows);
    if (auto* refusal = std::get_if<Refusal>(&leaf)) return std::move(*refusal);
    input.element.leaves.push_back(std::move(std::get<models::LayeredLeaf>(leaf)));
    i = last;
  }
  if (input.element.leaves.size() != input.element.cavities.size() + 1)
    return RefusedRow(setup, count - 1, Field::kStratumKind, kMultilayerEndsRow);
  if (std::ranges::all_of(input.element.leaves, IsGlassAlone)) {
    for (models::LayeredCavity& cavity : input.element.cavities) cavity.edge = models::CavityEdge::kGlazed;
  }
  return input;
}

}  // namespace velmar::calculation
