#include "manual_builder/accuracy_figures.h"

#include <cmath>
#include <stdexcept>

#include "foundation/message_rows.h"
#include "validation/model_choice.h"

namespace velmar::manual {
namespace {

using validation::AccuracyRow;

std::string ModelName(const std::string& model, const presentation::Words& words) {
  if (model == "layered") return words(kLayeredNameRow);
  if (model == "monolithic") return words(kMonolithicNameRow);
  if (model == "footfall") return words(kFootfallNameRow);
  return model;
}

std::string QuantityName(const std::string& quantity) {
  if (quantity == "DeltaRw") return "ΔRw";
  if (quantity == "DeltaLnw") return "ΔLn,w";
  return quantity == "Lnw" ? "Ln,w" : quantity;
}

std::string Percent(double share) { return std::to_string(std::lround(100.0 * share)) + " %"; }

std::string ErrorTable(const std::vector<AccuracyRow>& table, const Arguments& groups,
                       const presentation::Words& words) {
  std::vector<std::vector<std::string>> rows;
  for (const std::string& argument : groups) {
    const std::size_t sign = argument.find(" = ");
    if (sign == std::string::npos) throw std::runtime_error("a group lacks its name");
    const std::string group = argument.substr(0, sign);
    std::string name = argument.substr(sign + 3);
    for (const AccuracyRow& row : table) {
      if (row.group != group) continue;
      const validation::ErrorSummary& errors = row.errors;
      rows.push_back({name, ModelName(row.model, words), QuantityName(row.quantity),
                      std::to_string(errors.count) + " / " + std::to_string(errors.sources),
                      SignedText(errors.bias, 1), NumberText(errors.rms, 1), SignedText(errors.worst, 1),
                      Percent(errors.within_3db)});
      name.clear();
    }
    if (!name.empty()) throw std::runtime_error("nothing was measured in the group " + group);
  }
  return TableText({"Costruzioni misurate", "Calcolo o modello", "Indice", "Misure / fonti", "Media [dB]",
                    "Valore quadratico medio [dB]", "Peggiore [dB]", "Entro 3 dB"},
                   rows);
}

}  // namespace

void AddAccuracyFigures(const validation::Accuracy& accuracy, const presentation::Words& words,
                        Directives& directives) {
  directives["errori"] = [table = accuracy.Table(), words](const Arguments& groups) {
    return ErrorTable(table, groups, words);
  };
  directives["copertura"] = [figures = accuracy.Coverages()](const Arguments& given) {
    if (given.empty()) throw std::runtime_error("an argument is missing");
    return Percent((given.front() == "fonte" ? figures.leave_one_source_out : figures.leave_one_out).Share());
  };
}

}  // namespace velmar::manual
