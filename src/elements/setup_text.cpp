#include "elements/setup_text.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <type_traits>

#include "elements/named_texts.h"
#include "foundation/decimal.h"

namespace velmar::elements {
namespace {

// Every value becomes a text and comes back from it; what a set-up consists of is walked once, for both ways.

template <typename Value>
std::string TextOf(const Value& value) {
  if constexpr (std::is_same_v<Value, std::string>) {
    return value;
  } else if constexpr (std::is_same_v<Value, BandTexts>) {
    return JoinTexts({value.begin(), value.end()});
  } else if constexpr (std::is_same_v<Value, Absorption>) {
    std::vector<std::string> bands;
    for (const float band : value) bands.push_back(FormatShortest(band));
    return JoinTexts(bands);
  } else if constexpr (std::is_floating_point_v<Value>) {
    return FormatShortest(value);
  } else {
    return std::to_string(static_cast<int>(value));
  }
}

bool Take(const std::string& text, std::string& value) {
  value = text;
  return true;
}
bool Take(const std::string& text, double& value) {
  const std::optional<double> number = ParseDecimal(text);
  if (number) value = *number;
  return number.has_value();
}
bool Take(const std::string& text, float& value) {
  const std::optional<float> number = ParseSingle(text);
  if (number) value = *number;
  return number.has_value();
}
bool Take(const std::string& text, int& value) {
  const std::optional<double> number = ParseDecimal(text);
  constexpr double kLargest = 1e6;
  if (!number || *number != std::floor(*number) || std::abs(*number) > kLargest) return false;
  value = static_cast<int>(*number);
  return true;
}
bool Take(const std::string& text, bool& value) {
  value = text == "1";
  return text == "0" || value;
}
template <typename Array>
bool TakeBands(const std::string& text, Array& values) {
  const auto texts = PartTexts(text);
  if (!texts || texts->size() != values.size()) return false;
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (!Take(texts->at(i), values.at(i))) return false;
  }
  return true;
}
bool Take(const std::string& text, BandTexts& values) { return TakeBands(text, values); }
bool Take(const std::string& text, Absorption& values) { return TakeBands(text, values); }

/// A choice out of `count`.
template <typename Enum>
bool TakeChoice(const std::string& text, int count, Enum& value) {
  int number = 0;
  if (!Take(text, number) || number < 0 || number >= count) return false;
  value = static_cast<Enum>(number);
  return true;
}
bool Take(const std::string& text, CavityKind& value) {
  return TakeChoice(text, static_cast<int>(CavityKind::kGenericMaterial) + 1, value);
}
bool Take(const std::string& text, SeaCavityType& value) {
  return TakeChoice(text, kSeaCavityTypeCount, value);
}
bool Take(const std::string& text, StratumKind& value) { return TakeChoice(text, kStratumKindCount, value); }
bool Take(const std::string& text, CavityConnection& value) {
  return TakeChoice(text, kCavityConnectionCount, value);
}

template <typename AnyMaterial, typename Visit>
void VisitMaterial(AnyMaterial& material, Visit&& visit) {
  using Material = std::remove_const_t<AnyMaterial>;
  visit(material.name);
  visit(material.description);
  visit(material.thickness_mm);
  visit(material.density_kg_m3);
  if constexpr (std::is_same_v<Material, ResilientMaterial>) {
    visit(material.dynamic_stiffness_mn_m3);
    visit(material.impact_improvement_db);
    visit(material.resonance_frequency_hz);
  } else {
    visit(material.youngs_modulus_gpa);
    visit(material.loss_factor);
    visit(material.poissons_ratio);
  }
  if constexpr (std::is_same_v<Material, FibrousMaterial>) {
    visit(material.porous);
    visit(material.flow_resistance_pa_s_m);
    visit(material.absorption);
  }
  if constexpr (std::is_same_v<Material, StructuralMaterial>) {
    visit(material.critical_frequency_hz);
    visit(material.surface_mass_kg_m2);
    visit(material.thermal_conductivity_w_mk);
    visit(material.thermal_conductance_w_m2k);
    visit(material.vapour_permeability_dry);
    visit(material.vapour_permeability_wet);
    visit(material.thermal_resistance_m2k_w);
  }
}

template <typename Element, typename Visit>
void VisitElement(const std::string& name, Element& element, Visit& visit) {
  visit(name + ".nome", element.name);
  visit(name + ".descrizione", element.description);
  visit(name + ".area", element.area_text);
  visit(name + ".indice", element.rating_text);
  visit(name + ".C", element.c_text);
  visit(name + ".Ctr", element.ctr_text);
  visit(name + ".bande", element.band_texts);
  visit(name + ".massa", element.mass_kg_m2);
}

template <typename Rows, typename Visit>
void VisitRows(const std::string& name, Rows& rows, Visit& visit) {
  for (std::size_t i = 0; i < rows.size(); ++i) visit(name + '.' + std::to_string(i + 1), rows[i]);
}

template <typename Table, typename Visit>
void VisitTable(const std::string& name, Table& table, Visit& visit) {
  visit(name + ".strati", table.count);
  VisitRows(name, table.rows, visit);
}

template <typename Damping, typename Visit>
void VisitDamping(const std::string& name, Damping& damping, Visit& visit) {
  for (std::size_t i = 0; i < damping.size(); ++i) {
    const std::string row = name + ".smorzante." + std::to_string(i + 1);
    visit(row + ".presente", damping[i].ticked);
    visit(row, damping[i].row);
  }
}

template <typename List, typename Visit>
void VisitList(List& list, Visit& visit) {
  visit("multistrato.righe", list.count);
  for (std::size_t i = 0; i < list.strata.size(); ++i) {
    auto& row = list.strata[i];
    const std::string name = "multistrato." + std::to_string(i + 1);
    visit(name + ".tipo", row.kind);
    visit(name, row.solid);
    visit(name + ".fibra", row.fibre);
    visit(name + ".resistivita", row.flow_resistivity_pa_s_m2);
    visit(name + ".spessore", row.thickness_text);
    visit(name + ".collegamento", row.connection);
    visit(name + ".collegamenti", row.connection_text);
    visit(name + ".greca.altezza", row.profile_height_text);
    visit(name + ".greca.passo", row.profile_pitch_text);
  }
}

template <typename AnySetup, typename Visit>
void VisitSetup(AnySetup& setup, Visit& visit) {
  VisitSingleFields([&](Field, const char* name, auto& value) { visit(name, value); }, setup);
  VisitTable("parete1", setup.leaf1, visit);
  VisitTable("parete2", setup.leaf2, visit);
  VisitTable("intercapedine", setup.cavity.layers, visit);
  VisitTable("resiliente", setup.resilient, visit);
  VisitTable("sea1", setup.sea_leaf1, visit);
  VisitDamping("sea1", setup.sea_leaf1.damping, visit);
  VisitTable("sea2", setup.sea_leaf2, visit);
  VisitDamping("sea2", setup.sea_leaf2.damping, visit);
  VisitRows("sea.fibra", setup.sea_cavity.fibres, visit);
  VisitRows("sea.massa", setup.sea_cavity.masses, visit);
  VisitDamping("sea.massa", setup.sea_cavity.mass_damping, visit);
  VisitElement("base", setup.base, visit);
  visit("facciata.componenti", setup.facade.count_text);
  for (std::size_t i = 0; i < setup.facade.components.size(); ++i) {
    const std::string name = "componente." + std::to_string(i + 1);
    VisitElement(name, setup.facade.components[i], visit);
    visit(name + ".tenuta", setup.facade.components[i].tightness_class);
  }
  VisitList(setup.multilayer, visit);
}

template <typename Material>
std::string MaterialText(const Material& material) {
  std::vector<std::string> values;
  VisitMaterial(material, [&](const auto& value) { values.push_back(TextOf(value)); });
  return JoinTexts(values);
}

template <typename Material>
bool TakeMaterial(const std::string& text, Material& material) {
  const auto values = PartTexts(text);
  if (!values) return false;
  std::size_t i = 0;
  bool all = true;
  VisitMaterial(material, [&](auto& value) {
    all = all && i < values->size() && Take(values->at(i), value);
    ++i;
  });
  return all && i == values->size();
}

/// A row whose material is `material`, which may be the material or what stands for it.
template <typename Material>
std::string RowText(const LayerRow<Material>& row, const std::string& material) {
  return JoinTexts({material, row.listed, row.thickness_text, std::to_string(row.multiplicity)});
}

/// Takes a row but for its material. @return the text of the material; nothing when `text` is no row
template <typename Material>
std::optional<std::string> TakeRow(std::string_view text, LayerRow<Material>& row) {
  constexpr double kMostSheets = 999.0;
  const auto parts = PartTexts(text);
  if (!parts || parts->size() != 4 || !Take(parts->at(3), row.multiplicity) || row.multiplicity < 0 ||
      row.multiplicity > kMostSheets)
    return std::nullopt;
  row.listed = parts->at(1);
  row.thickness_text = parts->at(2);
  return parts->at(0);
}

/// The materials of a text, each once, in the order of their numbers from 1.
class Materials {
 public:
  /// "@n" for the material that is `text`.
  std::string NameOf(const std::string& text) {
    const auto [entry, added] = names_.try_emplace(text, names_.size() + 1);
    if (added) lines_.emplace_back('@' + std::to_string(entry->second), text);
    return '@' + std::to_string(entry->second);
  }
  const NamedTexts& Lines() const { return lines_; }

 private:
  std::map<std::string, std::size_t> names_;
  NamedTexts lines_;
};

/// Turns what it visits into named texts, materials by their number.
struct Collect {
  Materials& materials;
  NamedTexts texts{};

  template <typename Value>
  void operator()(std::string name, const Value& value) {
    texts.emplace_back(std::move(name), TextOf(value));
  }
  template <typename Material>
  void operator()(std::string name, const LayerRow<Material>& row) {
    if (row == LayerRow<Material>()) {
      texts.emplace_back(std::move(name), std::string());
      return;
    }
    texts.emplace_back(std::move(name), RowText(row, materials.NameOf(MaterialText(row.slot))));
  }
};

/// Takes what it visits from named texts; what has none stays as it is.
struct Restore {
  const std::map<std::string, std::string>& texts;
  std::size_t taken = 0;
  bool whole = true;

  template <typename Value>
  void operator()(const std::string& name, Value& value) {
    const auto found = texts.find(name);
    if (found == texts.end()) return;
    ++taken;
    whole = whole && TakeValue(found->second, value);
  }

  template <typename Value>
  bool TakeValue(const std::string& text, Value& value) {
    return Take(text, value);
  }
  template <typename Material>
  bool TakeValue(const std::string& text, LayerRow<Material>& row) {
    const auto name = TakeRow(text, row);
    const auto material = name ? texts.find(*name) : texts.end();
    return material != texts.end() && TakeMaterial(material->second, row.slot);
  }
};

/// What stands in for a field that the text does not name.
const Setup& Blank() {
  static const Setup blank;
  return blank;
}

/// The counts and list positions that a text may hold: no more than by hand.
bool IsWithinLimits(const Setup& setup) {
  constexpr int kMostTyped = 999;
  const auto within = [](int count, int lowest, int highest) { return count >= lowest && count <= highest; };
  const bool classes = std::ranges::all_of(setup.facade.components, [&](const FacadeComponent& component) {
    return within(component.tightness_class, 0, 4);
  });
  return classes && within(setup.multilayer.count, 1, Multilayer::kCapacity) &&
         within(setup.leaf1.count, 1, LeafLayers::kCapacity) &&
         within(setup.leaf2.count, 1, LeafLayers::kCapacity) &&
         within(setup.cavity.layers.count, 1, kMostTyped) &&
         within(setup.resilient.count, 0, ResilientLayers::kCapacity) &&
         within(setup.sea_leaf1.count, 1, SeaLeaf::kCapacity) &&
         within(setup.sea_leaf2.count, 1, SeaLeaf::kCapacity) && within(setup.hanger, -1, 2);
}

constexpr const char* kCalculationName = "calcolo";
/// The last line, with the number of lines before it: a text that was cut off is none.
constexpr const char* kEndName = "fine";

}  // namespace

std::string WriteSetupText(const Setup& setup) {
  Materials materials;
  Collect written{materials};
  VisitSetup(setup, written);
  Materials of_blank;
  Collect blank{of_blank};
  VisitSetup(Blank(), blank);
  NamedTexts texts;
  if (setup.calculation) texts.emplace_back(kCalculationName, RowOf(*setup.calculation).variant);
  texts.insert(texts.end(), materials.Lines().begin(), materials.Lines().end());
  for (std::size_t i = 0; i < written.texts.size(); ++i) {
    if (written.texts[i] != blank.texts[i]) texts.push_back(std::move(written.texts[i]));
  }
  texts.emplace_back(kEndName, std::to_string(texts.size()));
  return WriteNamedTexts(texts);
}

std::optional<Setup> ReadSetupText(std::string_view text) {
  auto named = ReadNamedTexts(text);
  if (!named || named->empty() || named->back().first != kEndName ||
      named->back().second != std::to_string(named->size() - 1))
    return std::nullopt;
  named->pop_back();
  std::map<std::string, std::string> texts;
  std::size_t materials = 0;
  Setup setup = Blank();
  for (auto& [name, value] : *named) {
    if (name == kCalculationName) {
      setup.calculation = FindCalculation(value);
      if (!setup.calculation) return std::nullopt;
      continue;
    }
    materials += name.starts_with('@') ? 1 : 0;
    if (!texts.emplace(std::move(name), std::move(value)).second) return std::nullopt;
  }
  Restore restore{texts};
  VisitSetup(setup, restore);
  const bool all_known = restore.taken + materials == texts.size();
  if (!restore.whole || !all_known || !IsWithinLimits(setup)) return std::nullopt;
  return setup;
}

NamedTexts SingleFieldTexts(const Setup& setup, FieldSet fields) {
  NamedTexts texts;
  VisitSingleFields(
      [&](Field field, const char* name, const auto& value, const auto& blank) {
        if (fields.Has(field) && value != blank) texts.emplace_back(name, TextOf(value));
      },
      setup, Blank());
  return texts;
}

bool TakeSingleFields(const NamedTexts& texts, FieldSet fields, Setup& setup) {
  bool whole = true;
  VisitSingleFields(
      [&](Field field, const char* name, auto& value, const auto& blank) {
        if (!fields.Has(field)) return;
        value = blank;
        const auto text = std::ranges::find(texts, name, &NamedTexts::value_type::first);
        if (text != texts.end() && !Take(text->second, value)) whole = false;
      },
      setup, Blank());
  return whole;
}

template <typename Material>
std::string WriteRowText(const LayerRow<Material>& row) {
  return RowText(row, MaterialText(row.slot));
}

template <typename Material>
bool ReadRowText(std::string_view text, LayerRow<Material>& row) {
  const auto material = TakeRow(text, row);
  return material && TakeMaterial(*material, row.slot);
}

template std::string WriteRowText(const LayerRow<StructuralMaterial>&);
template std::string WriteRowText(const LayerRow<FibrousMaterial>&);
template std::string WriteRowText(const LayerRow<ResilientMaterial>&);
template bool ReadRowText(std::string_view, LayerRow<StructuralMaterial>&);
template bool ReadRowText(std::string_view, LayerRow<FibrousMaterial>&);
template bool ReadRowText(std::string_view, LayerRow<ResilientMaterial>&);

}  // namespace velmar::elements
