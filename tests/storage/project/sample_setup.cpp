#include "tests/storage/project/sample_setup.h"

#include <array>
#include <string>

#include "foundation/decimal.h"

namespace velmar::storage {
namespace {

using elements::Calculation;
using elements::Family;
using elements::Setup;
using enum elements::Calculation;

class Sampler {
 public:
  explicit Sampler(Damping damping) : damping_(damping) {}

  void Leaf(elements::LeafLayers& leaf) {
    leaf.count = 2;
    for (std::size_t i = 0; i < 2; ++i) {
      auto& row = leaf.rows.at(i);
      Structural(row);
      row.multiplicity = static_cast<int>(i) + 1;
      row.slot.thermal_conductivity_w_mk = 0.8;
      row.slot.vapour_permeability_dry = -0.5;
      row.slot.vapour_permeability_wet = 123456789.125;
      row.slot.thermal_resistance_m2k_w = 0.0001;
    }
  }

  void SeaLeaf(elements::SeaLeaf& leaf) {
    leaf.count = 2;
    for (std::size_t i = 0; i < 2; ++i) {
      Structural(leaf.rows.at(i));
      DampingRow(leaf.damping.at(2 * i), true);
      DampingRow(leaf.damping.at(2 * i + 1), false);
    }
  }

  void SeaCavity(elements::SeaCavity& cavity, elements::SeaCavityType type) {
    cavity.type = type;
    cavity.depth_text = "120,5";
    for (std::size_t j = 0; j < 3; ++j) {
      if (j < static_cast<std::size_t>(FibreCount(type))) Fibre(cavity.fibres.at(j));
      if (j >= 2) continue;
      if (j < static_cast<std::size_t>(MassCount(type))) Structural(cavity.masses.at(j));
      DampingRow(cavity.mass_damping.at(j), j == 1);
    }
  }

  void CavityLayers(elements::CavityLayers& layers) {
    layers.count = 2;
    for (std::size_t i = 0; i < 2; ++i) {
      auto& row = layers.rows.at(i);
      Fibre(row);
      row.multiplicity = 3;
      row.slot.porous = i == 1;
      if (!row.slot.porous) continue;
      row.slot.youngs_modulus_gpa = row.slot.loss_factor = row.slot.poissons_ratio = 0.0;
      row.slot.flow_resistance_pa_s_m = 4000.0;
    }
  }

  void Resilient(elements::ResilientLayers& layers) {
    layers.count = 2;
    for (std::size_t i = 0; i < 2; ++i) {
      auto& row = layers.rows.at(i);
      ++number_;
      row.slot = {Name(), Description(), Thickness(), 30.0, 8.25, 32.0, 61.5};
      row.multiplicity = 2;
      Show(row);
    }
  }

  void Multilayer(elements::Multilayer& list) {
    using elements::StratumKind;
    constexpr std::array kKinds = {
        StratumKind::kPlate, StratumKind::kBondedPlate, StratumKind::kFibre,
        StratumKind::kAir,   StratumKind::kPlate,       StratumKind::kInterlayer,
        StratumKind::kPlate, StratumKind::kAir,         StratumKind::kProfiledSheet};
    list.count = static_cast<int>(kKinds.size());
    list.framed = true;
    for (std::size_t i = 0; i < kKinds.size(); ++i) {
      elements::Stratum& stratum = list.strata.at(i);
      stratum.kind = kKinds.at(i);
      if (elements::TakesSolid(stratum.kind)) Structural(stratum.solid);
      if (stratum.kind == StratumKind::kFibre) {
        Fibre(stratum.fibre);
        stratum.flow_resistivity_pa_s_m2 = 12500.5;
      }
      if (elements::HasThicknessAlone(stratum.kind)) stratum.thickness_text = "1" + std::to_string(i) + ",5";
    }
    list.strata[2].connection = elements::CavityConnection::kSteelStuds;
    list.strata[2].connection_text = "40";
    list.strata[8].profile_height_text = "35";
    list.strata[8].profile_pitch_text = "207";
  }

  template <typename Element>
  void Rated(Element& element) {
    ++number_;
    element.name = Name();
    element.description = Description();
    element.rating_text = "5" + std::to_string(number_);
    element.area_text = "12,5";
    element.mass_kg_m2 = 240.1F;
    for (std::size_t k = 0; k < element.band_texts.size(); ++k) {
      element.band_texts.at(k) = k == 0 ? "" : std::to_string(30 + k) + ",5";
    }
    element.c_text = "-1";
    element.ctr_text = "-" + std::to_string(number_ + 3);
  }

 private:
  std::string Name() const { return "Materiale " + std::to_string(number_); }
  std::string Description() const { return "Descrizione n° " + std::to_string(number_); }
  double Thickness() const { return 10.0 * number_ + 0.5; }

  template <typename Material>
  static void Show(elements::LayerRow<Material>& row) {
    row.listed = row.slot.name;
    row.thickness_text = FormatShortest(row.slot.thickness_mm);
  }

  void Structural(elements::LayerRow<elements::StructuralMaterial>& row) {
    ++number_;
    row.slot.name = Name();
    row.slot.description = Description();
    row.slot.thickness_mm = Thickness();
    row.slot.density_kg_m3 = 1000.0 + number_;
    row.slot.youngs_modulus_gpa = 2.5;
    row.slot.critical_frequency_hz = 3e-5;
    row.slot.loss_factor = 0.01;
    row.slot.poissons_ratio = 0.2;
    row.slot.surface_mass_kg_m2 = 12.25;
    row.slot.thermal_conductance_w_m2k = 1e16;
    Show(row);
  }

  void DampingRow(elements::DampingRow& damping, bool every_other) {
    damping.ticked = every_other || damping_ == Damping::kAll;
    if (damping.ticked) Structural(damping.row);
  }

  void Fibre(elements::LayerRow<elements::FibrousMaterial>& row) {
    ++number_;
    row.slot.name = Name();
    row.slot.description = Description();
    row.slot.thickness_mm = Thickness();
    row.slot.density_kg_m3 = 40.0;
    row.slot.youngs_modulus_gpa = 0.002;
    row.slot.loss_factor = 0.1;
    row.slot.poissons_ratio = 0.25;
    Show(row);
  }

  int number_ = 0;
  Damping damping_;
};

void Information(Setup& setup) {
  setup.information = {{{"Progetto", "Scuola è nuova"},
                        {"Cliente", "Comune"},
                        {"Progetto n.", "12/A"},
                        {"Tecnico", ""},
                        {"Dati di progetto", "piano 2°"},
                        {"Note", "prima riga\r\nseconda riga"},
                        {"Allegato n./sigla", "A1"},
                        {"", ""}}};
}

void DoubleWall(Setup& setup, Sampler& sampler) {
  sampler.Leaf(setup.leaf1);
  sampler.Leaf(setup.leaf2);
  setup.cavity.depth_text = "80";
  switch (*setup.calculation) {
    case kDoubleWallGeneric:
      setup.cavity.kind = elements::CavityKind::kGenericMaterial;
      sampler.CavityLayers(setup.cavity.layers);
      break;
    case kDoubleWallPlasterboardCommonStuds:
    case kDoubleWallBrickTorvalle:
      setup.cavity.kind = elements::CavityKind::kFibrous;
      setup.cavity.fibre_text = "45,5";
      break;
    case kLightWallLineLine:
      setup.support_distance_text = "45";
      break;
    default:
      break;
  }
}

void Lining(Setup& setup, Sampler& sampler) {
  sampler.Rated(setup.base);
  setup.base.thickness_mm = 250.0;
  sampler.SeaCavity(setup.sea_cavity, elements::SeaCavityType::kFibre);
  sampler.SeaLeaf(setup.sea_leaf2);
  if (setup.calculation == kLiningFrame) setup.support_distance_text = "3";
  if (setup.calculation == kCeilingSea) setup.hanger = 2;
}

void FacadeOf(Setup& setup, Sampler& sampler) {
  sampler.Rated(setup.base);
  setup.facade.count_text = "2";
  for (std::size_t i = 0; i < 2; ++i) {
    sampler.Rated(setup.facade.components.at(i));
    setup.facade.components.at(i).tightness_class = 4 - static_cast<int>(i);
  }
  setup.facade.components.at(1).area_text = elements::kSmallElementArea;
}

}  // namespace

Setup SampleSetup(Calculation calculation, Damping damping) {
  Setup setup;
  Sampler sampler(damping);
  setup.calculation = calculation;
  Information(setup);
  const elements::CalculationRow& row = RowOf(calculation);
  if (row.family == Family::kFacade) {
    FacadeOf(setup, sampler);
    return setup;
  }
  if (row.family == Family::kLining || row.family == Family::kCeiling) {
    Lining(setup, sampler);
    return setup;
  }
  setup.width_text = "4,5";
  setup.height_text = "2,70";
  if (row.family == Family::kMultilayer) {
    sampler.Multilayer(setup.multilayer);
  } else if (row.family == Family::kSingle) {
    sampler.Leaf(setup.leaf1);
  } else if (row.family == Family::kSeaSingle) {
    sampler.SeaLeaf(setup.sea_leaf1);
  } else if (row.family == Family::kSea) {
    setup.decoupled = calculation == kDoubleWallSeaBrick;
    if (!setup.decoupled) setup.support_distance_text = "20";
    sampler.SeaLeaf(setup.sea_leaf1);
    sampler.SeaCavity(setup.sea_cavity, elements::SeaCavityType::kFibreMassFibreMass);
    sampler.SeaLeaf(setup.sea_leaf2);
  } else if (row.button == elements::ElementButton::kFloor) {
    sampler.Leaf(setup.leaf1);
    sampler.Leaf(setup.leaf2);
    setup.resilient.count = 0;
    if (row.family == Family::kImpact) sampler.Resilient(setup.resilient);
  } else {
    DoubleWall(setup, sampler);
  }
  return setup;
}

}  // namespace velmar::storage
