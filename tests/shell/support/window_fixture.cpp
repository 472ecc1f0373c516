#include "tests/shell/support/window_fixture.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QLineEdit>
#include <QTest>
#include <clocale>

#include "application/accuracy_file.h"
#include "application/projects.h"
#include "calculation/edits/material_choice.h"
#include "storage/materials/material_store.h"
#include "storage/messages/message_table_reader.h"
#include "storage/project/project_writer.h"

namespace velmar::shell {
namespace {

using elements::MaterialFamily;

const std::filesystem::path& Databases() {
  static const std::filesystem::path folder = std::filesystem::path(SHARE) / "Databases";
  return folder;
}

std::string Word(MessageRow row) {
  static const storage::MessageTable table =
      storage::ReadMessageTable(Databases() / "InterfMess.mdb", "Italiano");
  return table.Text(row);
}

/// The tables, read once: thousands of choices of a random walk need no file.
template <typename Material>
const std::vector<storage::MaterialRow<Material>>& Rows() {
  static const auto rows = storage::MaterialStore(Databases() / "Database" / "Database.mdb").Rows<Material>();
  return rows;
}

template <typename Material>
std::optional<elements::MaterialRecord<Material>> FindRecord(std::string_view name) {
  for (const auto& row : Rows<Material>()) {
    if (row.record.values.name == name) return row.record;
  }
  return std::nullopt;
}

template <typename Material>
std::vector<storage::ListedMaterial> List() {
  std::vector<storage::ListedMaterial> list;
  for (const auto& row : Rows<Material>()) list.push_back({row.record.values.name, row.keyword});
  return list;
}

std::vector<storage::ListedMaterial> ListOf(MaterialFamily family) {
  switch (family) {
    case MaterialFamily::kStructural:
      return List<elements::StructuralMaterial>();
    case MaterialFamily::kFibrous:
      return List<elements::FibrousMaterial>();
    case MaterialFamily::kResilient:
      return List<elements::ResilientMaterial>();
  }
  return {};
}

validation::Accuracy Known() {
  static const validation::Accuracy accuracy = application::ReadAccuracy(
      std::filesystem::path(SHARE) / application::kValidationFolder / application::kPredictionsFile);
  return accuracy;
}

elements::Setup FirstSetup() {
  elements::Setup setup;
  calculation::SelectFirstMaterials(setup, &Rows<elements::StructuralMaterial>().front().record,
                                    &Rows<elements::FibrousMaterial>().front().record,
                                    &Rows<elements::ResilientMaterial>().front().record);
  return setup;
}

}  // namespace

WindowFixture::WindowFixture() {
  // As the program does: numbers are read and written by code that knows one locale.
  std::setlocale(LC_NUMERIC, "C");
  services.words = Word;
  services.materials = {FindRecord<elements::StructuralMaterial>, FindRecord<elements::FibrousMaterial>,
                        FindRecord<elements::ResilientMaterial>};
  services.material_names = ListOf;
  services.read_project = [this](const std::filesystem::path& path) {
    return application::OpenProject(path, open.Setup(), services.materials).setup;
  };
  services.look_at_project = [materials = services.materials](const std::filesystem::path& path,
                                                              const elements::Setup& current) {
    return application::OpenProject(path, current, materials).setup;
  };
  services.write_project = [](const std::filesystem::path& path, const elements::Setup& setup) {
    storage::SaveProject(path, setup);
  };
  services.boxes.ask = [this](const QString& question) {
    asked += question;
    return go_on;
  };
  services.boxes.ask_or_cancel = [this](const QString&) {
    ++save_questions;
    return save;
  };
  services.boxes.tell = [this](Tone, const QString& text) { told += text; };
  services.boxes.choose_file_to_open = [this](const FileQuestion&) { return file; };
  services.boxes.tell_written = [this](const QString& text, const std::filesystem::path& path) {
    told += text;
    written += QString::fromStdString(path.string());
  };
  services.boxes.choose_file_to_save = [this](const FileQuestion& question) {
    to_save.push_back(question);
    return file;
  };
  services.new_setup = FirstSetup;
  services.ask_about_lost_work = [this](const std::vector<LostWork>& works) {
    lost.push_back(works);
    if (lost_answers.empty()) return LostWorkAnswer{};
    const LostWorkAnswer answer = lost_answers.front();
    lost_answers.erase(lost_answers.begin());
    return answer;
  };
  services.version = "2.0.0";
  services.accuracy = validation::KnownAccuracy(Known);
  open.Replace(FirstSetup());
  services.overlay = &overlay;
  MakeWindow();
}

void WindowFixture::MakeWindow() {
  window.reset();
  window = std::make_unique<MainWindow>(services);
}

void WindowFixture::Choose(const char* control) {
  // On the start screen a choice would bring the usual layers of its kind instead of the first materials.
  if (!open.Setup().calculation) {
    elements::Setup begun = open.Setup();
    begun.calculation = elements::Calculation::kSingleWallGeneric;
    open.Replace(std::move(begun));
  }
  Find<QAction>(control)->trigger();
}

QString WindowFixture::ControlOf(elements::Calculation calculation) const {
  const elements::CalculationRow& row = RowOf(calculation);
  const QString group = QString::fromUtf8(row.menu_group.data(), static_cast<int>(row.menu_group.size()));
  const QString entry = group + '_' + QString::number(row.menu_index);
  return window->findChild<QAction*>(entry) != nullptr ? entry : group;
}

void WindowFixture::Choose(elements::Calculation calculation) { Choose(qPrintable(ControlOf(calculation))); }

void WindowFixture::Run() { Find<QAction>("esegui_calcolo")->trigger(); }

void WindowFixture::Drop(QWidget* target, const QMimeData& dragged) {
  const QPoint place(5, 5);
  QDragEnterEvent enter(place, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(target, &enter);
  if (!enter.isAccepted()) return;
  QDropEvent drop(place, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(target, &drop);
}

void WindowFixture::Type(const QString& name, const QString& keys) const {
  auto* field = Find<QLineEdit>(name);
  field->setFocus();
  field->selectAll();
  QTest::keyClicks(field, keys);
}

}  // namespace velmar::shell
