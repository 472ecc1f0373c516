#include "tests/presentation/drawing/catalogue_words.h"

#include <fstream>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace velmar::presentation {
namespace {

/// The fields of one line of comma-separated values; no field of the message files holds a line break.
std::vector<std::string> FieldsOf(const std::string& line) {
  std::vector<std::string> fields(1);
  bool quoted = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '"' && quoted && i + 1 < line.size() && line[i + 1] == '"') {
      fields.back() += line[++i];
    } else if (line[i] == '"') {
      quoted = !quoted;
    } else if (line[i] == ',' && !quoted) {
      fields.emplace_back();
    } else if (line[i] != '\r') {
      fields.back() += line[i];
    }
  }
  return fields;
}

void Read(const std::string& path, std::map<int, std::string>& texts) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error("cannot read " + path);
  std::string line;
  std::getline(file, line);
  while (std::getline(file, line)) {
    const std::vector<std::string> fields = FieldsOf(line);
    if (fields.size() >= 3) texts[std::stoi(fields[0])] = fields[2];
  }
}

}  // namespace

Words CatalogueWords() {
  const auto texts = std::make_shared<std::map<int, std::string>>();
  Read(VELMAR_MESSAGES "/catalogue.csv", *texts);
  Read(VELMAR_MESSAGES "/texts.csv", *texts);
  return [texts](MessageRow row) {
    const auto found = texts->find(row.number);
    return found == texts->end() ? std::string() : found->second;
  };
}

}  // namespace velmar::presentation
