#include "tests/shell/support/stores_program.h"

#include <QDialog>
#include <QListView>
#include <QTreeWidget>

#include "storage/library/library_store.h"
#include "storage/results/results_store.h"
#include "tests/storage/support/databases.h"

namespace velmar::shell {

namespace fs = std::filesystem;

namespace {

/// A test of the library: R (or Dn,e) from `lowest_db`, a little more every band.
std::vector<storage::Cell> Row(const storage::LibraryFolder& kind, const std::string& name, double lowest_db,
                               double rating) {
  std::vector<storage::Cell> row(kind.table.columns.size());
  const auto set = [&](const std::string& column, const storage::Cell& cell) {
    row.at(*kind.table.Find(column)) = cell;
  };
  set("Nome", name);
  set(kind.rating, rating);
  set("C (dB)", -1.0);
  set("Ctr (dB)", -3.5);
  double level = lowest_db;
  for (const std::string& column : storage::BandColumns(kind.band_prefix)) set(column, level += 1.1);
  set("Area (m²)", 1.75);
  set("m' (kg/m²)", 27.5);
  return row;
}

}  // namespace

StoresProgram::StoresProgram() {
  const fs::path databases = fs::path(SHARE) / "Databases";
  places.library = databases / "Database";
  places.pictures = databases / "immagine";
  places.results = folder.filePath("Database_teorico.mdb").toStdString();
  fs::copy_file(places.library / "Database_teorico.mdb", places.results);
  fs::permissions(places.results, fs::perms::owner_all);
  fixture.services.boxes.ask_name = [this](const NameQuestion&) { return name; };
  OpenWindow();
}

fs::path StoresProgram::CopyLibrary() {
  const fs::path copy = folder.filePath("Database").toStdString();
  fs::copy(places.library, copy, fs::copy_options::recursive);
  fs::permissions(copy, fs::perms::owner_all);
  for (const auto& entry : fs::recursive_directory_iterator(copy))
    fs::permissions(entry.path(), fs::perms::owner_all);
  places.library = copy;
  OpenWindow();
  return copy;
}

void StoresProgram::AddMeasurements() {
  const fs::path library = CopyLibrary();
  const storage::LibraryFolder openings = *storage::FindLibraryFolder("Infissi");
  const fs::path windows = library / openings.folder / "Serramenti.mdb";
  storage::MakeTables(windows, {openings.table});
  storage::InsertRows(
      windows, openings.table,
      {Row(openings, "Finestra a due ante", 19.7, 34), Row(openings, "Porta-finestra", 22.4, 38)});
  const storage::LibraryFolder small = *storage::FindLibraryFolder("Piccoli elementi");
  const fs::path vents = library / small.folder / "Bocchette.mdb";
  fs::create_directories(vents.parent_path());
  storage::MakeTables(vents, {small.table});
  storage::InsertRows(vents, small.table, {Row(small, "Bocchetta \"silenziata\"", 30.2, 42)});
}

void StoresProgram::OpenWindow() {
  fixture.window.reset();
  commands = std::make_unique<StructureCommands>(
      fixture.open, fixture.services, fixture.services.places.settings, places,
      std::make_shared<storage::AccessSession>(storage::AccessReader{}));
  fixture.services.Add(*commands);
  fixture.MakeWindow();
  fixture.window->show();
}

void StoresProgram::Store(const std::string& stored_name, double lowest_db, double area_m2) const {
  storage::SavedResult result;
  result.name = stored_name;
  result.rating = lowest_db + 15;
  result.adaptation = -1;
  result.other_adaptation = -5;
  result.area_m2 = area_m2;
  result.mass_kg_m2 = 120;
  for (std::size_t i = 0; i < result.bands.size(); ++i) result.bands[i] = lowest_db + static_cast<double>(i);
  storage::ResultsStore(places.results).Save(storage::ResultTable::kAirborne, result);
}

void StoresProgram::OpenEntry(const QDialog& window, const QString& tree, const QString& file,
                              const QString& list, const QString& entry) {
  auto* files = window.findChild<QTreeWidget*>(tree);
  const auto found = files->findItems(file, Qt::MatchExactly | Qt::MatchRecursive);
  if (found.isEmpty()) qFatal("no file %s", qPrintable(file));
  files->setCurrentItem(found.first());
  auto* view = window.findChild<QListView*>(list);
  const QAbstractItemModel& model = *view->model();
  const auto rows = model.match(model.index(0, 0), Qt::DisplayRole, entry, 1, Qt::MatchExactly);
  if (rows.isEmpty()) qFatal("no entry %s", qPrintable(entry));
  view->setCurrentIndex(rows.first());
}

}  // namespace velmar::shell
