#include "presentation/reports/structure_rows.h"

#include <utility>

#include "elements/parts.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "presentation/reports/facade_rows.h"
#include "presentation/texts/calculation_labels.h"
#include "presentation/texts/field_texts.h"

namespace velmar::presentation {
namespace {

using elements::CalculationRow;
using elements::Layer;
using elements::Part;
using elements::Setup;
using elements::Stack;

/// Depths that differ by less are equal: nobody enters a cavity to the tenth of a millimetre.
constexpr double kNoDepthMm = 0.05;

StructureRow Heading(std::string name) { return {.kind = StructureKind::kHeading, .name = std::move(name)}; }

StructureRow RowOfLayer(const Setup& setup, const Layer& layer, const Words& words) {
  return {.kind = StructureKind::kLayer,
          .number = layer.number,
          .name = LayerName(setup, layer, words),
          .description = layer.description,
          .thickness_mm = layer.thickness_mm,
          .multiplicity = layer.sheets,
          .mass_kg_m2 = layer.mass_kg_m2};
}

StructureRow CavityRow(std::string name, double depth_mm) {
  return {.kind = StructureKind::kCavity, .name = std::move(name), .thickness_mm = depth_mm};
}

std::string CavityHeading(const Setup& setup, Stack stack, const Words& words) {
  if (stack == Stack::kCavity) return words(kCavityRow);
  return words(kCavityRow) + ": " + SeaCavityTypeText(setup.sea_cavity.type, words);
}

void ListCavity(const Setup& setup, const Part& part, const Words& words, std::vector<StructureRow>& rows) {
  const double depth_mm = *part.depth_mm;
  if (part.fibre_mm) {
    std::string name = words(kFibrousCavityRow);
    if (elements::RowOf(*setup.calculation).Reads(elements::Field::kFibreThickness))
      name += ", " + FormatShortest(*part.fibre_mm) + " mm";
    rows.push_back(CavityRow(std::move(name), depth_mm));
    rows.back().number = part.fibre_number;
    return;
  }
  if (part.layers.empty()) {
    rows.push_back(CavityRow(words(kAirCavityRow), depth_mm));
    return;
  }
  rows.push_back(Heading(CavityHeading(setup, part.stack, words)));
  for (const Layer& layer : part.layers) rows.push_back(RowOfLayer(setup, layer, words));
  const double left_mm = depth_mm - part.ThicknessMm();
  if (left_mm > kNoDepthMm) rows.push_back(CavityRow(words(kAirCavityRow), left_mm));
}

void AddWords(std::string text, std::vector<StructureRow>& rows) {
  rows.push_back({.kind = StructureKind::kWords, .name = std::move(text)});
}

/// What ties the leaves together, where the calculation reads it; the hanger has a place of its own.
void ListConnections(const Setup& setup, const Words& words, std::vector<StructureRow>& rows) {
  for (const InputText& text : ConnectionTexts(setup, words)) {
    if (text.field == elements::Field::kHanger) continue;
    AddWords(text.caption + (text.value.empty() ? std::string() : ": " + text.value), rows);
  }
}

/// What ties the leaves on both sides of one cavity of a free list together.
void ListCavityConnection(const Setup& setup, int stratum, const Words& words,
                          std::vector<StructureRow>& rows) {
  std::string text = ConnectionText(setup.multilayer, stratum, words);
  if (!text.empty()) AddWords(std::move(text), rows);
}

void ListBase(const Setup& setup, const Part& part, const Words& words, std::vector<StructureRow>& rows) {
  const std::string kind = StackName(*setup.calculation, part.stack, words);
  const Layer& base = part.layers.front();
  rows.push_back(Heading(kind));
  rows.push_back({.kind = StructureKind::kBase,
                  .number = base.number,
                  .name = base.name.empty() ? kind : base.name,
                  .description = base.description,
                  .thickness_mm = base.thickness_mm,
                  .mass_kg_m2 = base.mass_kg_m2,
                  .rating = setup.base.rating_text});
  AddWords("Rw = " + setup.base.rating_text + " dB", rows);
}

void ListLayers(const Setup& setup, const Part& part, const Words& words, std::vector<StructureRow>& rows) {
  const bool alone = elements::RowOf(*setup.calculation).stacks.size() == 1 && part.leaf == 0;
  if (part.stack == Stack::kResilient && part.layers.empty()) return;
  rows.push_back(Heading(alone ? ElementTypeText(*setup.calculation, words)
                               : PartName(*setup.calculation, part, words)));
  for (const Layer& layer : part.layers) rows.push_back(RowOfLayer(setup, layer, words));
}

}  // namespace

std::vector<StructureRow> StructureRowsOf(const Setup& setup, const Words& words) {
  std::vector<StructureRow> rows;
  if (!setup.calculation) return rows;
  if (elements::RowOf(*setup.calculation).stacks.Has(Stack::kComponents)) return FacadeRowsOf(setup, words);
  for (const Part& part : elements::PartsAsTheyStand(setup)) {
    if (part.stack == Stack::kBase) {
      ListBase(setup, part, words, rows);
    } else if (part.depth_mm) {
      ListCavity(setup, part, words, rows);
      part.stratum >= 0 ? ListCavityConnection(setup, part.stratum, words, rows)
                        : ListConnections(setup, words, rows);
    } else {
      ListLayers(setup, part, words, rows);
    }
  }
  // The cavities of a free list tell their own connections; what holds all leaves stands below them.
  if (elements::RowOf(*setup.calculation).Reads(elements::Field::kTracks))
    ListConnections(setup, words, rows);
  return rows;
}

std::string WithoutRemarks(const std::string& description) {
  // A full stop behind a short word is that of an abbreviation.
  constexpr std::size_t kShortWord = 3;
  std::size_t end = description.size();
  for (std::size_t at = description.find(". "); at != std::string::npos;
       at = description.find(". ", at + 1)) {
    const std::size_t blank = description.rfind(' ', at == 0 ? 0 : at - 1);
    const std::size_t word = blank == std::string::npos ? at : at - blank - 1;
    const char next = at + 2 < description.size() ? description[at + 2] : ' ';
    if (word <= kShortWord || next < 'A' || next > 'Z') continue;
    end = at;
    break;
  }
  std::string sentence = description.substr(0, end);
  if (sentence.ends_with('.')) sentence.pop_back();
  return sentence;
}

std::string FullName(const StructureRow& row) {
  // What a user says of a part of a facade or of a base is no remark of a database.
  const std::string description =
      row.kind == StructureKind::kLayer ? WithoutRemarks(row.description) : row.description;
  if (description.empty() || description == row.name) return row.name;
  return row.name.empty() ? description : row.name + ": " + description;
}

}  // namespace velmar::presentation
