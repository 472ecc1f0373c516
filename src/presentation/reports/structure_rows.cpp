#include "presentation/reports/structure_rows.h"

#include <utility>

#include "elements/catalogue.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "presentation/reports/facade_rows.h"
#include "presentation/texts/calculation_labels.h"
#include "presentation/texts/layer_rows.h"
#include "presentation/texts/sea_cavity_parts.h"

namespace velmar::presentation {
namespace {

using elements::Family;
using elements::LayerRow;
using elements::Orientation;
using elements::Setup;

/// Depths that differ by less are equal: nobody enters a cavity to the tenth of a millimetre.
constexpr double kNoDepthMm = 0.05;

template <typename Material>
double MassOf(const LayerRow<Material>& row) {
  return row.slot.density_kg_m3 * row.slot.thickness_mm * row.multiplicity / 1000.0;
}

template <typename Material>
double ThicknessOf(const LayerRow<Material>& row) {
  return row.slot.thickness_mm * row.multiplicity;
}

/// Appends rows and counts the layers.
class Listing {
 public:
  explicit Listing(const Words& words) : words_(words) {}

  void Heading(std::string name) {
    rows_.push_back({.kind = StructureKind::kHeading, .name = std::move(name)});
  }

  template <typename Material>
  void Layer(const LayerRow<Material>& row) {
    rows_.push_back({.kind = StructureKind::kLayer,
                     .number = ++count_,
                     .name = NameOf(row),
                     .description = row.slot.description,
                     .thickness_mm = row.slot.thickness_mm,
                     .multiplicity = row.multiplicity,
                     .mass_kg_m2 = MassOf(row)});
  }

  template <typename Material, std::size_t N>
  void Layers(const elements::LayerTable<Material, N>& table) {
    for (int i = 0; i < RowsInUse(table); ++i) Layer(table.rows[static_cast<std::size_t>(i)]);
  }

  void Layers(const elements::SeaLeaf& leaf) {
    for (int i = 0; i < RowsInUse(leaf); ++i) {
      const auto row = static_cast<std::size_t>(i);
      Damping(leaf.damping[2 * row]);
      Layer(leaf.rows[row]);
      Damping(leaf.damping[2 * row + 1]);
    }
  }

  void Damping(const elements::DampingRow& damping) {
    if (damping.ticked) Layer(damping.row);
  }

  void CavityRow(MessageRow name, double depth_mm) {
    rows_.push_back({.kind = StructureKind::kCavity, .name = words_(name), .thickness_mm = depth_mm});
  }

  void Cavity(const Setup& setup);
  void SeaCavity(const elements::SeaCavity& cavity);
  void Base(const elements::BaseElement& base, double thickness_mm, MessageRow kind);

  std::vector<StructureRow> Rows() && { return std::move(rows_); }

 private:
  const Words& words_;
  std::vector<StructureRow> rows_{};
  int count_ = 0;
};

void Listing::Cavity(const Setup& setup) {
  const elements::Cavity& cavity = setup.cavity;
  const double depth = NumberOf(cavity.depth_text);
  if (cavity.kind == elements::CavityKind::kGenericMaterial) {
    Heading(words_(kCavityRow));
    double filled = 0.0;
    for (int i = 0; i < RowsInUse(cavity.layers); ++i) {
      filled += ThicknessOf(cavity.layers.rows[static_cast<std::size_t>(i)]);
    }
    Layers(cavity.layers);
    if (depth - filled > kNoDepthMm) CavityRow(kAirCavityRow, depth - filled);
    return;
  }
  const bool fibrous = cavity.kind == elements::CavityKind::kFibrous;
  CavityRow(fibrous ? kFibrousCavityRow : kAirCavityRow, depth);
  if (fibrous && ReadsFibreThickness(*setup.calculation)) {
    rows_.back().name += ", " + FormatShortest(NumberOf(cavity.fibre_text)) + " mm";
  }
}

void Listing::SeaCavity(const elements::SeaCavity& cavity) {
  const double depth = NumberOf(cavity.depth_text);
  if (cavity.type == elements::SeaCavityType::kEmpty) {
    CavityRow(kAirCavityRow, depth);
    return;
  }
  Heading(words_(kCavityRow) + ": " + SeaCavityTypeText(cavity.type, words_));
  double filled = 0.0;
  std::size_t fibre = 0;
  std::size_t mass = 0;
  for (const SeaCavityPart part : PartsOf(cavity.type)) {
    if (part == SeaCavityPart::kFibre) {
      filled += ThicknessOf(cavity.fibres[fibre]);
      Layer(cavity.fibres[fibre++]);
      continue;
    }
    filled += ThicknessOf(cavity.masses[mass]);
    Layer(cavity.masses[mass]);
    const elements::DampingRow& damping = cavity.mass_damping[mass++];
    if (damping.ticked) filled += ThicknessOf(damping.row);
    Damping(damping);
  }
  if (depth - filled > kNoDepthMm) CavityRow(kAirCavityRow, depth - filled);
}

void Listing::Base(const elements::BaseElement& base, double thickness_mm, MessageRow kind) {
  Heading(words_(kind));
  rows_.push_back({.kind = StructureKind::kBase,
                   .number = ++count_,
                   .name = base.name.empty() ? words_(kind) : base.name,
                   .description = base.description,
                   .thickness_mm = thickness_mm,
                   .mass_kg_m2 = static_cast<double>(base.mass_kg_m2),
                   .rating = base.rating_text});
}

void ListDouble(const Setup& setup, Family family, const Words& words, Listing& listing) {
  const bool glazing = elements::IsGlazing(*setup.calculation);
  listing.Heading(words(glazing ? kPane1Row : kLeaf1Row));
  if (family == Family::kSea) {
    listing.Layers(setup.sea_leaf1);
    listing.SeaCavity(setup.sea_cavity);
  } else {
    listing.Layers(setup.leaf1);
    listing.Cavity(setup);
  }
  listing.Heading(words(glazing ? kPane2Row : kLeaf2Row));
  if (family == Family::kSea) {
    listing.Layers(setup.sea_leaf2);
  } else {
    listing.Layers(setup.leaf2);
  }
}

void ListFloor(const Setup& setup, const Words& words, Listing& listing) {
  listing.Heading(words(kFloorRow));
  listing.Layers(setup.leaf1);
  if (RowsInUse(setup.resilient) > 0) {
    listing.Heading(words(kResilientMaterialTabRow));
    listing.Layers(setup.resilient);
  }
  listing.Heading(words(kScreedRow));
  listing.Layers(setup.leaf2);
}

}  // namespace

std::vector<StructureRow> StructureRowsOf(const Setup& setup, const Words& words) {
  Listing listing(words);
  if (!setup.calculation) return {};
  const elements::CalculationRow& row = elements::RowOf(*setup.calculation);
  switch (row.orientation) {
    case Orientation::kVerticalSingle:
    case Orientation::kHorizontalSingle:
      listing.Heading(ElementTypeText(*setup.calculation, words));
      if (row.family == Family::kSeaSingle) {
        listing.Layers(setup.sea_leaf1);
      } else {
        listing.Layers(setup.leaf1);
      }
      break;
    case Orientation::kVerticalDouble:
      ListDouble(setup, row.family, words, listing);
      break;
    case Orientation::kHorizontalDouble:
      ListFloor(setup, words, listing);
      break;
    case Orientation::kLining:
    case Orientation::kCeiling:
      listing.Heading(words(kLiningRow));
      listing.Layers(setup.sea_leaf2);
      listing.SeaCavity(setup.sea_cavity);
      listing.Base(setup.base, BaseThicknessOf(setup),
                   row.orientation == Orientation::kCeiling ? kBaseFloorRow : kBaseWallTabRow);
      break;
    case Orientation::kComposite:
      return FacadeRowsOf(setup, words);
  }
  return std::move(listing).Rows();
}

std::string FullName(const StructureRow& row) {
  if (row.description.empty() || row.description == row.name) return row.name;
  return row.name.empty() ? row.description : row.name + ": " + row.description;
}

}  // namespace velmar::presentation
