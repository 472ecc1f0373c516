#include "tests/shell/structures/fake_sources.h"

#include <QComboBox>
#include <QListView>
#include <QPixmap>
#include <QTest>
#include <QTreeWidget>
#include <algorithm>

#include "tests/presentation/drawing/catalogue_words.h"

namespace velmar::structures {

Failure LockedFailure() {
  return Failure({{std::string("Il file è in uso da un altro programma.")}}, "locked");
}

ResultSource FakeResults::Source() {
  ResultSource source;
  source.list = [this](ResultKind kind) {
    ++lists;
    if (locked) throw LockedFailure();
    std::vector<ResultEntry> entries;
    for (const calculation::FacadePart& part : tables[kind])
      entries.push_back({part.name, part.rating_db, part.description});
    return entries;
  };
  const auto place = [this](ResultKind kind, const std::string& name) {
    if (locked) throw LockedFailure();
    auto& table = tables[kind];
    return std::find_if(table.begin(), table.end(), [&](const auto& part) { return part.name == name; });
  };
  source.find = [this, place](ResultKind kind, const std::string& name) {
    const auto found = place(kind, name);
    return found == tables[kind].end() ? std::nullopt : std::optional(*found);
  };
  source.messages = [this](ResultKind /*kind*/, const std::string& name) { return messages[name]; };
  source.copy = [this, place](ResultKind kind, const std::string& name) {
    const auto found = place(kind, name);
    if (found == tables[kind].end()) return CopiedTable();
    using storage::NumberField;
    using storage::TextField;
    return CopiedTable{{TextField({MessageRow{371}}), TextField({found->name})},
                       {TextField({MessageRow{372}, std::string(" [dB]")}), NumberField(found->rating_db)},
                       {NumberField(50), NumberField(63)},
                       {NumberField(30.5), NumberField(std::nullopt)}};
  };
  source.remove = [this, place](ResultKind kind, const std::string& name) {
    const auto found = place(kind, name);
    if (found == tables[kind].end()) return false;
    tables[kind].erase(found);
    return true;
  };
  return source;
}

LibrarySource FakeLibrary::Source() {
  LibrarySource source;
  source.files = [this](Branch branch) {
    std::vector<LibraryFile> listed;
    for (const std::string& name : files[branch]) listed.push_back({branch, name, {}});
    return listed;
  };
  source.tests = [this](const LibraryFile& file) {
    if (locked) throw LockedFailure();
    std::vector<TestEntry> entries;
    for (const MeasuredTest& test : tests[file.name])
      entries.push_back({test.part.name, test.part.description, keywords[test.part.name]});
    return entries;
  };
  source.test = [this](const LibraryFile& file, const std::string& name) -> std::optional<MeasuredTest> {
    if (locked) throw LockedFailure();
    for (const MeasuredTest& test : tests[file.name]) {
      if (test.part.name == name) return test;
    }
    return std::nullopt;
  };
  return source;
}

calculation::FacadePart PartOf(const std::string& name, double lowest) {
  calculation::FacadePart part;
  part.name = name;
  part.description = name + ": descrizione";
  part.rating_db = lowest + 15;
  part.c_db = -1;
  part.ctr_db = -5;
  part.area_m2 = 2.5;
  part.mass_kg_m2 = 40;
  for (std::size_t i = 0; i < part.bands_db.size(); ++i) part.bands_db[i] = lowest + static_cast<double>(i);
  return part;
}

MeasuredTest TestOf(const std::string& name, double lowest) {
  MeasuredTest test;
  test.part = PartOf(name, lowest);
  test.part.origin = calculation::PartOrigin::kMeasurement;
  test.certificate = "n. 12/98";
  test.date = "12/05/1998";
  test.laboratory = "Laboratorio di prova";
  return test;
}

FakeLibrary SmallLibrary() {
  FakeLibrary library;
  library.files[Branch::kWalls] = {"Murature"};
  library.files[Branch::kOpenings] = {"Vetrate"};
  library.files[Branch::kSmallElements] = {"Prese d'aria"};
  library.tests["Murature"] = {TestOf("Forato 12", 28), TestOf("Pieno 25", 38), TestOf("Blocchi 20", 33)};
  library.tests["Vetrate"] = {TestOf("4-12-4", 20), TestOf("6-16-4", 23)};
  MeasuredTest vent = TestOf("Presa silenziata", 26);
  vent.part.quantity = calculation::PartQuantity::kElementDifference;
  vent.part.area_m2 = 0.0;
  library.tests["Prese d'aria"] = {vent};
  library.keywords = {{"Forato 12", "forati"}, {"Pieno 25", "pieni"}, {"Blocchi 20", "forati"}};
  return library;
}

void Picture(QWidget& window, const QString& name) {
  if (!qEnvironmentVariableIsSet("VELMAR_PICTURES")) return;
  window.grab().save(QDir(qEnvironmentVariable("VELMAR_PICTURES")).filePath(name + QStringLiteral(".png")));
}

void Activate(QWidget& window) {
  window.show();
  window.activateWindow();
  if (!QTest::qWaitForWindowActive(&window)) throw std::runtime_error("the window does not become active");
}

QStringList TabStops(QWidget& window) {
  QStringList stops;
  QWidget* control = window.focusWidget();
  while (control != nullptr && !stops.contains(control->objectName())) {
    stops << control->objectName();
    QTest::keyClick(control, Qt::Key_Tab);
    control = window.focusWidget();
  }
  return stops;
}

void OpenLibraryFile(QWidget& window, const char* tree, const QString& name) {
  auto& widget = Child<QTreeWidget>(window, tree);
  const QList<QTreeWidgetItem*> found = widget.findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
  if (found.isEmpty()) throw std::runtime_error("no file " + name.toStdString());
  widget.setCurrentItem(found.first());
}

void ChooseKeyword(QWidget& window, const char* box, const QString& keyword) {
  auto& keywords = Child<QComboBox>(window, box);
  const int index = keywords.findText(keyword);
  if (index < 0) throw std::runtime_error("no keyword " + keyword.toStdString());
  keywords.setCurrentIndex(index);
  emit keywords.textActivated(keyword);
}

void SelectTest(QWidget& window, const char* list, int row) {
  auto& view = Child<QListView>(window, list);
  view.setCurrentIndex(view.model()->index(row, 0));
}

}  // namespace velmar::structures
