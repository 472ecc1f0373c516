#include "manual_builder/example_figures.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include <nlohmann/json.hpp>

#include "acoustics/bands.h"
#include "foundation/message_rows.h"
#include "presentation/texts/calculation_data.h"
#include "validation/second_opinion.h"

namespace velmar::manual {
namespace {

constexpr const char* kUsual = "usuale-";
constexpr const char* kEnding = ".drav";
constexpr std::size_t kBandColumns = 3;

/// "44 (C −1; Ctr −4)"; the terms of a lining stand against its base and are left out.
std::string RatingText(const elements::ResultSet& result, elements::Family family) {
  if (result.lnw) {
    return "Ln,w = " + NumberText(*result.lnw, 0) +
           (result.ci ? " (Ci " + NumberText(*result.ci, 0) + ") dB" : " dB");
  }
  std::string text = "Rw = " + NumberText(result.rw.value(), 0);
  if (family == elements::Family::kLining || family == elements::Family::kCeiling)
    return text + " dB, ΔRw = " + NumberText(result.delta_rw.value(), 0) + " dB";
  if (result.c && result.ctr)
    text += " (C " + NumberText(*result.c, 0) + "; Ctr " + NumberText(*result.ctr, 0) + ")";
  return text + " dB";
}

/// `table` without the column of the sources, which the list of materials gives.
std::string ShortTable(presentation::DataTable table, const presentation::Words& words) {
  const auto source = std::ranges::find(table.heads, words(kSourceHeadRow));
  if (source != table.heads.end()) {
    const auto place = source - table.heads.begin();
    table.heads.erase(source);
    for (auto& row : table.rows) row.erase(row.begin() + place);
  }
  return TableText(table.heads, table.rows);
}

const std::string& At(const Arguments& arguments, std::size_t place) {
  if (place >= arguments.size()) throw std::runtime_error("an argument is missing");
  return arguments[place];
}

}  // namespace

void ExampleFigures::AddTo(Directives& directives) {
  directives["valore"] = [this](const Arguments& given) {
    return Value(At(given, 0), At(given, 1), std::stoi(At(given, 2)));
  };
  directives["banda"] = [this](const Arguments& given) {
    return Band(At(given, 0), std::stod(At(given, 1)));
  };
  directives["risultato"] = [this](const Arguments& given) { return Result(At(given, 0)); };
  directives["dati"] = [this](const Arguments& given) { return Inputs(At(given, 0)); };
  directives["bande"] = [this](const Arguments& given) { return Bands(At(given, 0)); };
  directives["pareri"] = [this](const Arguments& given) { return Opinions(At(given, 0)); };
  directives["intervallo"] = [this](const Arguments& given) { return IntervalOf(At(given, 0)); };
  directives["costruzioni"] = [this](const Arguments&) { return UsualConstructions(); };
}

const cli::ProjectRun& ExampleFigures::Run(const std::string& project) {
  const auto known = runs_.find(project);
  if (known != runs_.end()) return known->second;
  cli::ProjectRun run = cli::RunProject(folder_ / (project + kEnding), services_.materials,
                                        /*go_on_outside_ranges=*/true);
  if (!run.outcome.result) throw std::runtime_error("no result of the example " + project);
  return runs_.emplace(project, std::move(run)).first->second;
}

std::string ExampleFigures::Value(const std::string& project, const std::string& quantity, int decimals) {
  const cli::ProjectRun& run = Run(project);
  const nlohmann::json json =
      cli::OutcomeJson(run.texts, run.outcome, run.numbers, run.totals, services_.words);
  if (json.contains(quantity)) return NumberText(json[quantity].get<double>(), decimals);
  return NumberText(json.at("ratings").at(quantity).get<double>(), decimals);
}

std::string ExampleFigures::Band(const std::string& project, double centre_hz) {
  const acoustics::Spectrum& spectrum = Run(project).outcome.result->spectrum.value();
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    if (acoustics::BandCentre(band) == centre_hz) return NumberText(spectrum[band], 1);
  }
  throw std::runtime_error("no such band");
}

std::string ExampleFigures::Result(const std::string& project) {
  const cli::ProjectRun& run = Run(project);
  return RatingText(*run.outcome.result, elements::RowOf(*run.setup.calculation).family);
}

std::string ExampleFigures::Inputs(const std::string& project) {
  const presentation::CalculationData data =
      presentation::CalculationDataOf(Run(project).setup, services_.words);
  std::string text;
  for (const presentation::DataField& field : data.fields) {
    if (!field.value.empty()) text += (text.empty() ? "" : "; ") + field.caption + ": " + field.value;
  }
  if (!text.empty()) text += ".\n";
  for (const presentation::DataTable& table : data.tables) {
    const bool of_bands =
        table.title == services_.words(kBandDataRow) || table.title == services_.words(kAbsorptionDataRow);
    if (!of_bands) text += ShortTable(table, services_.words);
  }
  return text;
}

std::string ExampleFigures::Bands(const std::string& project) {
  const elements::ResultSet& result = *Run(project).outcome.result;
  const acoustics::Spectrum& spectrum = result.spectrum.value();
  const std::string quantity = result.lnw ? "Ln [dB]" : "R [dB]";
  std::vector<std::string> heads;
  std::vector<std::vector<std::string>> rows(acoustics::kBandCount / kBandColumns);
  for (std::size_t column = 0; column < kBandColumns; ++column) {
    heads.insert(heads.end(), {"f [Hz]", quantity});
    for (std::size_t row = 0; row < rows.size(); ++row) {
      const std::size_t band = column * rows.size() + row;
      rows[row].push_back(NumberText(acoustics::BandCentre(band), 0));
      rows[row].push_back(NumberText(spectrum[band], 1));
    }
  }
  return TableText(heads, rows);
}

std::string ExampleFigures::Opinions(const std::string& project) {
  const cli::ProjectRun& run = Run(project);
  const validation::SecondOpinion opinion =
      validation::FormOpinion(run.setup, run.outcome.result, services_.accuracy());
  std::vector<std::vector<std::string>> rows;
  for (const validation::ModelOpinion& model : opinion.models) {
    rows.push_back({presentation::InWords(model.name, services_.words) + (model.best ? " ★" : ""),
                    RatingText(model.result, elements::RowOf(*run.setup.calculation).family),
                    presentation::InWords(validation::IntervalLine(model.interval), services_.words),
                    model.errors ? SignedText(model.errors->bias, 1) + " dB (" +
                                       std::to_string(model.errors->count) + ")"
                                 : "–"});
  }
  return TableText({"Modello", "Risultato", "Che cosa misurerebbe un laboratorio", "Errore medio (misure)"},
                   rows);
}

std::string ExampleFigures::IntervalOf(const std::string& project) {
  const cli::ProjectRun& run = Run(project);
  return presentation::InWords(validation::IntervalLine(validation::IntervalOfResult(
                                   run.setup, *run.outcome.result, services_.accuracy())),
                               services_.words);
}

std::string ExampleFigures::UsualConstructions() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
    const std::string name = entry.path().stem().string();
    if (name.starts_with(kUsual)) names.push_back(name);
  }
  std::ranges::sort(names);
  std::vector<std::vector<std::string>> rows;
  for (const std::string& name : names) {
    const cli::ProjectRun& run = Run(name);
    const auto shortest = [](double value) {
      return NumberText(value, std::fabs(value - std::round(value)) < 0.05 ? 0 : 1);
    };
    rows.push_back({run.setup.information.at(0).value, shortest(run.totals.thickness_mm),
                    shortest(run.totals.surface_mass_kg_m2), Result(name)});
  }
  return TableText({"Costruzione (esempio)", "Spessore [mm]", "Massa [kg/m²]", "Risultato"}, rows);
}

}  // namespace velmar::manual
