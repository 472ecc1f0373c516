#include "tests/shell/support/stores_program.h"

#include <QDialog>
#include <QListView>
#include <QTreeWidget>

#include "storage/results/results_store.h"

namespace velmar::shell {

namespace fs = std::filesystem;

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
