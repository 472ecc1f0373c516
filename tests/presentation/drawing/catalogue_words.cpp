#include "tests/presentation/drawing/catalogue_words.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "foundation/csv.h"

namespace velmar::presentation {
namespace {

void Read(const std::string& path, std::map<int, std::string>& texts) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  const CsvTable table = ParseCsv(std::string(std::istreambuf_iterator<char>(file), {}));
  const auto italian = std::ranges::find(table.header, "Italiano") - table.header.begin();
  for (const std::vector<std::string>& fields : table.rows)
    texts[std::stoi(fields.at(0))] = fields.at(static_cast<std::size_t>(italian));
}

}  // namespace

Words CatalogueWords() {
  static const std::map<int, std::string> texts = [] {
    std::map<int, std::string> read;
    Read(VELMAR_MESSAGES "/catalogue.csv", read);
    Read(VELMAR_MESSAGES "/texts.csv", read);
    return read;
  }();
  return [](MessageRow row) {
    const auto found = texts.find(row.number);
    return found == texts.end() ? std::string() : found->second;
  };
}

}  // namespace velmar::presentation
