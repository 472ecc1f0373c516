#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmar::storage {

enum class ColumnType { kText, kNumber, kYesNo, kWhole };

struct ColumnSchema {
  std::string name;  ///< with its unit; part of the format
  ColumnType type = ColumnType::kText;
};

/// A table of a database file: its columns in order and the column that rows are looked up by.
struct TableSchema {
  std::string name;
  std::vector<ColumnSchema> columns;
  std::string key;          ///< the name of its index is `name` + " " + `key`; may be empty
  bool unique_key = false;  ///< without regard to the case of ASCII letters

  /// The place of the column called `column`, or nothing.
  std::optional<size_t> Find(std::string_view column) const;
};

/// "Modulo_A1": structural materials.
TableSchema StructuralMaterialTable();
/// "Modulo_A2": fibrous materials.
TableSchema FibrousMaterialTable();
/// "Modulo_A3": resilient materials.
TableSchema ResilientMaterialTable();
/// The three tables above, in that order: what a material database holds.
std::vector<TableSchema> MaterialTables();

/// "Potere_fonoisolante": saved airborne results.
TableSchema AirborneResultTable();
/// "Livello_calpestio": saved impact results.
TableSchema ImpactResultTable();
/// "DRw": saved results of linings and suspended ceilings.
TableSchema LiningResultTable();
/// The three tables above, in that order: what a results database holds.
std::vector<TableSchema> ResultTables();

/// "DRAV": the message catalogue, one column a language. Row n of the table is text n; no column holds n.
TableSchema CatalogueTable(const std::vector<std::string>& languages);
/// "Testi": the program's further texts under their number, "Riga".
TableSchema FurtherTextTable(const std::vector<std::string>& languages);

/// A folder of the library of measured structures: every file in it holds one table.
struct LibraryFolder {
  std::string key;     ///< of its node in the windows' trees
  std::string folder;  ///< below the folder "Database"
  TableSchema table;
  std::string rating;       ///< the column of the single number, "Rw (dB)"
  std::string band_prefix;  ///< of the band columns, "R" of "R - 50Hz (dB)"
  bool field = false;       ///< measured in buildings
};

/// Every folder of the library, in the order in which windows list them.
std::vector<LibraryFolder> LibraryFolders();

/// The 21 columns of a spectrum: "R - 50Hz (dB)" to "R - 5000Hz (dB)" for the prefix "R".
std::vector<std::string> BandColumns(std::string_view prefix);

/// Octave bands of the library: 63 Hz to 8000 Hz.
inline constexpr std::size_t kOctaveCount = 8;
/// The columns of an octave spectrum: "R ottava - 63Hz (dB)" to "R ottava - 8000Hz (dB)" for the prefix "R".
std::vector<std::string> OctaveColumns(std::string_view prefix);

/// `name` as an identifier of SQL, in quotation marks.
std::string QuotedName(std::string_view name);
/// The statements that make an empty table with its index. The index is NOCASE, so that a look-up must ask
/// with the same collation; a key that is a whole number is the table's primary key and needs none.
std::vector<std::string> CreateStatements(const TableSchema& table);
/// INSERT of a whole row, one parameter a column in the order of the schema.
std::string InsertStatement(const TableSchema& table);

}  // namespace velmar::storage
