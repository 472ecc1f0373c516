#include "data_builder/table_text.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>

#include "foundation/failure.h"

namespace velmar::data_builder {

CsvTable ReadTableText(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error(file.string() + ": cannot be read");
  const std::string text{std::istreambuf_iterator<char>(stream), {}};
  try {
    return storage::ParseCsv(text);
  } catch (const Failure& failure) {
    throw std::runtime_error(file.string() + ": " + failure.what());
  }
}

std::vector<std::vector<storage::Cell>> ReadRows(const std::filesystem::path& file,
                                                 const storage::TableSchema& schema, Heading heading) {
  const CsvTable table = ReadTableText(file);
  const size_t most = schema.columns.size();
  if (table.header.size() > most || (table.header.size() < most && heading == Heading::kWhole)) {
    throw std::runtime_error(file.string() + ": the heading does not have the columns of " + schema.name);
  }
  for (size_t i = 0; i < table.header.size(); ++i) {
    if (table.header[i] == schema.columns[i].name) continue;
    throw std::runtime_error(file.string() + ": column \"" + table.header[i] + "\" should be \"" +
                             schema.columns[i].name + "\"");
  }
  std::vector<std::vector<storage::Cell>> rows;
  for (const std::vector<std::string>& fields : table.rows) {
    std::vector<storage::Cell> row;
    for (size_t i = 0; i < fields.size(); ++i) {
      std::optional<storage::Cell> cell = storage::ParseCell(schema.columns[i].type, fields[i]);
      if (!cell) {
        throw std::runtime_error(file.string() + ": \"" + fields[i] + "\" is no value of \"" +
                                 schema.columns[i].name + "\" in \"" + fields[0] + "\"");
      }
      row.push_back(std::move(*cell));
    }
    row.resize(most);
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace velmar::data_builder
