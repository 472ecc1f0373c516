#include "data_builder/shipped_data.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "data_builder/database_file.h"
#include "data_builder/message_tables.h"
#include "data_builder/table_text.h"
#include "storage/tables/schema.h"

namespace velmar::data_builder {
namespace {

namespace fs = std::filesystem;

void BuildMaterials(const fs::path& texts, const fs::path& file, Heading heading) {
  constexpr std::array<std::string_view, 3> kTexts = {"structural.csv", "fibrous.csv", "resilient.csv"};
  DatabaseFile database(file);
  const std::vector<storage::TableSchema> tables = storage::MaterialTables();
  for (size_t i = 0; i < tables.size(); ++i)
    database.Add(tables[i], ReadRows(texts / kTexts.at(i), tables[i], heading));
  database.Commit();
}

void BuildEmptyResults(const fs::path& file) {
  DatabaseFile database(file);
  for (const storage::TableSchema& table : storage::ResultTables()) database.Add(table, {});
  database.Commit();
}

std::vector<fs::path> SeriesOf(const fs::path& folder) {
  std::vector<fs::path> series;
  if (!fs::is_directory(folder)) return series;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == ".csv") series.push_back(entry.path());
  }
  std::sort(series.begin(), series.end());
  return series;
}

void BuildLibrary(const fs::path& texts, const fs::path& target) {
  for (const storage::LibraryFolder& folder : storage::LibraryFolders()) {
    fs::create_directories(target / folder.folder);
    for (const fs::path& series : SeriesOf(texts / folder.folder)) {
      DatabaseFile database(target / folder.folder / series.stem().concat(".mdb"));
      database.Add(folder.table, ReadRows(series, folder.table));
      database.Commit();
    }
  }
}

void CopyPictures(const fs::path& source, const fs::path& target) {
  fs::create_directories(target);
  fs::copy_file(source / "senza.jpg", target / "senza.jpg", fs::copy_options::overwrite_existing);
  for (const std::string_view folder : {"Partizioni verticali (Rw)", "Infissi", "Piccoli elementi (Dnew)",
                                        "Strati aggiuntivi orizzontali (DLw)", "intercapedine"}) {
    fs::create_directories(target / folder);
  }
}

}  // namespace

void BuildShippedData(const fs::path& source, const fs::path& target) {
  const fs::path databases = target / "Databases";
  fs::remove_all(databases);
  BuildMaterials(source / "materials", databases / "Database" / "Database.mdb", Heading::kWhole);
  BuildEmptyResults(databases / "Database" / "Database_teorico.mdb");
  BuildLibrary(source / "library", databases / "Database");
  CopyPictures(source / "library" / "immagine", databases / "immagine");
  BuildMessages(source / "messages", databases / "InterfMess.mdb");
  // What the first version shipped: the start tells by it what of such a data folder nobody changed.
  const fs::path former = target / "Former" / "Databases";
  fs::remove_all(former);
  BuildMaterials(source / "former" / "materials", former / "Database" / "Database.mdb",
                 Heading::kAsItOnceWas);
  BuildMessages(source / "former" / "messages", former / "InterfMess.mdb");
}

}  // namespace velmar::data_builder
