#include "storage/validation/measured_data.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "foundation/decimal.h"
#include "foundation/failure.h"
#include "storage/tables/csv.h"
#include "storage/validation/layer_texts.h"

namespace velmar::storage {
namespace {

using elements::BandValue;
using elements::Frame;
using elements::MeasuredConstruction;
using elements::MeasuredQuantity;
using elements::MeasuredSetup;
using elements::Setup;

/// A table whose fields are found by the name of their column.
class NamedTable {
 public:
  explicit NamedTable(const std::filesystem::path& file) : file_(file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error(file.string() + ": cannot be read");
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    try {
      table_ = ParseCsv(text);
    } catch (const Failure& failure) {
      throw std::runtime_error(file.string() + ": " + failure.what());
    }
  }

  std::size_t Size() const { return table_.rows.size(); }

  const std::string& Text(std::size_t row, std::string_view column) const {
    const auto at = std::ranges::find(table_.header, column);
    if (at == table_.header.end()) {
      throw std::runtime_error(file_.string() + ": no column \"" + std::string(column) + "\"");
    }
    return table_.rows[row][static_cast<std::size_t>(at - table_.header.begin())];
  }

  std::optional<double> Number(std::size_t row, std::string_view column) const {
    const std::string& text = Text(row, column);
    if (text.empty()) return std::nullopt;
    const std::optional<double> number = ParseDecimal(text);
    if (!number) throw Wrong(row, column);
    return number;
  }

  std::runtime_error Wrong(std::size_t row, std::string_view column) const {
    return std::runtime_error(file_.string() + ": \"" + Text(row, column) + "\" is no value of \"" +
                              std::string(column) + "\" in \"" + table_.rows[row][0] + "\"");
  }

 private:
  std::filesystem::path file_;
  CsvTable table_;
};

template <typename Value, std::size_t N>
Value Named(const std::array<std::pair<std::string_view, Value>, N>& names, const NamedTable& table,
            std::size_t row, std::string_view column) {
  const std::string& text = table.Text(row, column);
  for (const auto& [name, value] : names) {
    if (name == text) return value;
  }
  throw table.Wrong(row, column);
}

constexpr std::array<std::pair<std::string_view, Frame>, 7> kFrames = {
    {{"", Frame::kNone},
     {"legno", Frame::kWoodStuds},
     {"acciaio", Frame::kSteelStuds},
     {"acciaio elastico", Frame::kResilientStuds},
     {"profili elastici", Frame::kResilientChannels},
     {"separati", Frame::kSeparate},
     {"assenti", Frame::kUnframed}}};
constexpr std::array<std::pair<std::string_view, elements::BandWidth>, 3> kBandWidths = {
    {{"", elements::BandWidth::kNone},
     {"ottave", elements::BandWidth::kOctave},
     {"terzi", elements::BandWidth::kThirdOctave}}};
constexpr std::array<std::pair<std::string_view, MeasuredQuantity>, 5> kQuantities = {
    {{"R", MeasuredQuantity::kReduction},
     {"delta", MeasuredQuantity::kReductionImprovement},
     {"Ln", MeasuredQuantity::kImpactLevel},
     {"delta_Lw", MeasuredQuantity::kImpactImprovement},
     {"Ln+delta", MeasuredQuantity::kImpactLevelAndImprovement}}};
constexpr std::array<std::pair<std::string_view, elements::CavityKind>, 4> kCavityKinds = {
    {{"", elements::CavityKind::kEmpty},
     {"vuota", elements::CavityKind::kEmpty},
     {"fibra", elements::CavityKind::kFibrous},
     {"strati", elements::CavityKind::kGenericMaterial}}};

/// "125:36 250:37": value by frequency.
std::vector<BandValue> BandsIn(const NamedTable& table, std::size_t row, std::string_view column) {
  std::vector<BandValue> bands;
  std::istringstream words(table.Text(row, column));
  for (std::string word; words >> word;) {
    const std::size_t colon = word.find(':');
    const auto frequency = ParseDecimal(word.substr(0, colon));
    const auto level = colon == std::string::npos ? std::nullopt : ParseDecimal(word.substr(colon + 1));
    if (!frequency || !level) throw table.Wrong(row, column);
    bands.push_back({.frequency_hz = *frequency, .level_db = *level});
  }
  return bands;
}

std::map<std::string, std::string> SourceTitles(const std::filesystem::path& folder) {
  const NamedTable table(folder / "sources.csv");
  std::map<std::string, std::string> titles;
  for (std::size_t row = 0; row < table.Size(); ++row)
    titles[table.Text(row, "id")] = table.Text(row, "title");
  return titles;
}

std::vector<FibreKind> FibreKinds(const std::filesystem::path& folder) {
  const NamedTable table(folder / "fibres.csv");
  std::vector<FibreKind> kinds;
  for (std::size_t row = 0; row < table.Size(); ++row) {
    FibreKind& kind = kinds.emplace_back();
    kind.material.name = table.Text(row, "name");
    kind.material.porous = true;
    kind.material.density_kg_m3 = table.Number(row, "density_kg_m3").value_or(0.0);
    kind.flow_resistivity_pa_s_m2 = table.Number(row, "flow_resistivity_pa_s_m2").value_or(0.0);
    std::istringstream words(table.Text(row, "absorption_100_to_6300"));
    for (float& band : kind.material.absorption) {
      std::string word;
      const auto alpha = words >> word ? ParseSingle(word) : std::nullopt;
      if (!alpha) throw table.Wrong(row, "absorption_100_to_6300");
      band = *alpha;
    }
  }
  return kinds;
}

MeasuredConstruction ConstructionIn(const NamedTable& table, std::size_t row,
                                    const std::map<std::string, std::string>& titles) {
  MeasuredConstruction construction{.id = table.Text(row, "id"),
                                    .description = table.Text(row, "description"),
                                    .frame = Named(kFrames, table, row, "frame"),
                                    .source = table.Text(row, "source"),
                                    .source_place = table.Text(row, "place")};
  const auto title = titles.find(construction.source);
  if (title == titles.end()) throw table.Wrong(row, "source");
  construction.source_title = title->second;
  const std::string& quality = table.Text(row, "quality");
  if (quality.size() != 1) throw table.Wrong(row, "quality");
  construction.quality = quality[0];
  construction.rw = table.Number(row, "Rw");
  construction.c = table.Number(row, "C");
  construction.ctr = table.Number(row, "Ctr");
  construction.stc = table.Number(row, "STC");
  construction.rw_plus_c = table.Number(row, "Rw+C");
  construction.rw_of_octaves = table.Number(row, "Rw_octaves");
  construction.delta_stc = table.Number(row, "DSTC");
  construction.lnw = table.Number(row, "Lnw");
  construction.delta_lw = table.Number(row, "DLw");
  construction.band_width = Named(kBandWidths, table, row, "bands");
  construction.bands = BandsIn(table, row, "values");
  construction.impact_bands = BandsIn(table, row, "impact_values");
  return construction;
}

/// What was typed for a number of the table: the program's own decimal sign.
std::string Typed(const NamedTable& table, std::size_t row, std::string_view column) {
  const std::optional<double> number = table.Number(row, column);
  return number ? FormatShortest(*number) : std::string();
}

template <typename Rows, typename Table>
void Fill(Table& target, const Rows& rows, const NamedTable& table, std::size_t row,
          std::string_view column) {
  if (rows.size() > target.rows.size()) throw table.Wrong(row, column);
  target.count = static_cast<int>(rows.size());
  std::ranges::copy(rows, target.rows.begin());
}

void FillLeaf(elements::LeafLayers& leaf, const NamedTable& table, std::size_t row, std::string_view column) {
  if (const auto rows = ReadSheets(table.Text(row, column)); !rows.empty()) {
    Fill(leaf, rows, table, row, column);
  }
}

void FillSide(elements::SeaLeaf& side, const NamedTable& table, std::size_t row, std::string_view column) {
  if (const auto rows = ReadSheets(table.Text(row, column)); !rows.empty()) {
    Fill(side, rows, table, row, column);
  }
}

void FillCavities(Setup& setup, const NamedTable& table, std::size_t row,
                  const std::vector<FibreKind>& fibres) {
  const std::string depth = Typed(table, row, "depth_mm");
  const auto fills = ReadFills(table.Text(row, "fills"), fibres);
  if (!depth.empty()) {
    setup.cavity.depth_text = depth;
    setup.sea_cavity.depth_text = depth;
  }
  setup.cavity.kind = Named(kCavityKinds, table, row, "cavity");
  if (const std::string fibre = Typed(table, row, "fibre_mm"); !fibre.empty())
    setup.cavity.fibre_text = fibre;
  if (fills.empty()) return;
  Fill(setup.cavity.layers, fills, table, row, "fills");
  setup.sea_cavity.type = elements::SeaCavityType::kFibre;
  setup.sea_cavity.fibres[0] = fills[0];
}

void FillBase(elements::BaseElement& base, const NamedTable& table, std::size_t row) {
  base.thickness_mm = table.Number(row, "base_mm").value_or(0.0);
  base.mass_kg_m2 = static_cast<float>(table.Number(row, "base_kg_m2").value_or(0.0));
  base.rating_text = Typed(table, row, "base_rw");
  base.c_text = Typed(table, row, "base_c");
  base.ctr_text = Typed(table, row, "base_ctr");
  std::istringstream words(table.Text(row, "base_bands"));
  for (std::string& band : base.band_texts) {
    std::string word;
    if (!(words >> word)) break;
    const std::optional<double> level = ParseDecimal(word);
    if (!level) throw table.Wrong(row, "base_bands");
    band = FormatShortest(*level);
  }
}

Setup SetupIn(const NamedTable& table, std::size_t row, const std::vector<FibreKind>& fibres) {
  Setup setup;
  setup.width_text = Typed(table, row, "width_m");
  setup.height_text = Typed(table, row, "height_m");
  FillLeaf(setup.leaf1, table, row, "leaf1");
  FillLeaf(setup.leaf2, table, row, "leaf2");
  const auto mats = ReadMats(table.Text(row, "resilient"));
  setup.resilient.count = 0;
  if (!mats.empty()) Fill(setup.resilient, mats, table, row, "resilient");
  FillSide(setup.sea_leaf1, table, row, "side1");
  FillSide(setup.sea_leaf2, table, row, "side2");
  FillCavities(setup, table, row, fibres);
  setup.support_distance_text = Typed(table, row, "supports");
  setup.hanger = static_cast<int>(std::lround(table.Number(row, "hanger").value_or(0.0)));
  FillBase(setup.base, table, row);
  return setup;
}

void AddSetups(std::vector<MeasuredConstruction>& constructions, const std::filesystem::path& folder) {
  const NamedTable table(folder / "setups.csv");
  const std::vector<FibreKind> fibres = FibreKinds(folder);
  for (std::size_t row = 0; row < table.Size(); ++row) {
    const auto construction =
        std::ranges::find(constructions, table.Text(row, "measured"), &MeasuredConstruction::id);
    if (construction == constructions.end()) throw table.Wrong(row, "measured");
    MeasuredSetup measured{.setup = SetupIn(table, row, fibres),
                           .group = table.Text(row, "group"),
                           .quantity = Named(kQuantities, table, row, "quantity"),
                           .note = table.Text(row, "note")};
    const std::string& calculations = table.Text(row, "calculations");
    for (std::size_t begin = 0; begin <= calculations.size();) {
      const std::size_t end = std::min(calculations.find(" | ", begin), calculations.size());
      measured.setup.calculation = elements::FindCalculation(calculations.substr(begin, end - begin));
      if (!measured.setup.calculation) throw table.Wrong(row, "calculations");
      construction->setups.push_back(measured);
      begin = end + 3;
    }
  }
}

}  // namespace

elements::MeasuredData ReadMeasuredData(const std::filesystem::path& folder) {
  elements::MeasuredData data;
  const std::map<std::string, std::string> titles = SourceTitles(folder);
  const NamedTable table(folder / "constructions.csv");
  for (std::size_t row = 0; row < table.Size(); ++row) {
    data.constructions.push_back(ConstructionIn(table, row, titles));
  }
  AddSetups(data.constructions, folder);
  const NamedTable uncovered(folder / "not_covered.csv");
  for (std::size_t row = 0; row < uncovered.Size(); ++row) {
    data.uncovered.push_back({.id = uncovered.Text(row, "id"), .reason = uncovered.Text(row, "reason")});
  }
  return data;
}

}  // namespace velmar::storage
