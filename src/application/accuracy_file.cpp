#include "application/accuracy_file.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "foundation/decimal.h"
#include "foundation/failure.h"
#include "storage/files/whole_file.h"
#include "storage/tables/csv.h"

namespace velmar::application {
namespace {

using validation::Prediction;

const std::vector<std::string> kColumns = {
    "measured",  "group",     "source",     "model",      "kind",      "frame_known", "quantity",
    "predicted", "value",     "mass_kg_m2", "depth_mm",   "filled",    "error_63",    "error_125",
    "error_250", "error_500", "error_1000", "error_2000", "error_4000"};
constexpr std::size_t kFirstOctave = 12;

/// With a decimal point, and so that it reads back exactly.
std::string Number(double value) {
  char text[32];
  const auto end = std::to_chars(std::begin(text), std::end(text), value).ptr;
  return {text, end};
}

std::vector<std::string> RowOf(const Prediction& prediction) {
  std::vector<std::string> row = {prediction.measured,
                                  prediction.group,
                                  prediction.source,
                                  prediction.model,
                                  std::string(validation::RowOf(prediction.kind).id),
                                  prediction.frame_known ? "1" : "0",
                                  prediction.quantity,
                                  Number(prediction.predicted),
                                  Number(prediction.value),
                                  Number(prediction.features.mass_kg_m2),
                                  Number(prediction.features.depth_mm),
                                  prediction.features.filled ? "1" : "0"};
  for (const auto& error : prediction.octave_errors) row.push_back(error ? Number(*error) : std::string());
  return row;
}

double NumberIn(const std::string& text) {
  const auto number = ParseDecimal(text);
  if (!number) throw std::runtime_error("\"" + text + "\" is no number");
  return *number;
}

validation::ElementKind KindNamed(const std::string& id) {
  const auto kinds = validation::ElementKinds();
  const auto at = std::ranges::find(kinds, id, &validation::ElementKindRow::id);
  if (at == kinds.end()) throw std::runtime_error("\"" + id + "\" is no kind of element");
  return at->kind;
}

Prediction PredictionIn(const std::vector<std::string>& row) {
  Prediction prediction{
      .measured = row[0],
      .group = row[1],
      .source = row[2],
      .model = row[3],
      .kind = KindNamed(row[4]),
      .frame_known = row[5] == "1",
      .quantity = row[6],
      .predicted = NumberIn(row[7]),
      .value = NumberIn(row[8]),
      .features = {.mass_kg_m2 = NumberIn(row[9]), .depth_mm = NumberIn(row[10]), .filled = row[11] == "1"}};
  for (std::size_t i = 0; i < prediction.octave_errors.size(); ++i) {
    const std::string& text = row[kFirstOctave + i];
    if (!text.empty()) prediction.octave_errors[i] = NumberIn(text);
  }
  return prediction;
}

}  // namespace

void WritePredictions(const std::filesystem::path& file, const std::vector<Prediction>& predictions) {
  CsvTable table{.header = kColumns, .rows = {}};
  for (const Prediction& prediction : predictions) table.rows.push_back(RowOf(prediction));
  storage::WriteWhole(file, FormatCsv(table));
}

validation::Accuracy ReadAccuracy(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return {};
  const std::string text{std::istreambuf_iterator<char>(stream), {}};
  std::vector<Prediction> predictions;
  try {
    const CsvTable table = storage::ParseCsv(text);
    if (table.header != kColumns) throw std::runtime_error("other columns than this program's");
    for (const std::vector<std::string>& row : table.rows) predictions.push_back(PredictionIn(row));
  } catch (const Failure& failure) {
    throw std::runtime_error(file.string() + ": " + failure.what());
  } catch (const std::runtime_error& failure) {
    throw std::runtime_error(file.string() + ": " + failure.what());
  }
  return validation::Accuracy(std::move(predictions));
}

}  // namespace velmar::application
