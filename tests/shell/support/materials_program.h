#pragma once

#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "calculation/edits/layer_edits.h"
#include "calculation/edits/select_calculation.h"
#include "shell/commands/material_commands.h"
#include "shell/fields/material_box.h"
#include "shell/page_parts/layer_row.h"
#include "shell/windows/phrases.h"
#include "storage/materials/material_store.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {

using elements::LayerGroup;
using elements::MaterialFamily;
using elements::StructuralMaterial;

/// A wall of brick, as a row of its table.
inline storage::StructuralRow Wall(const std::string& name, double thickness_mm, const std::string& keyword) {
  storage::StructuralRow row;
  row.record.values.name = name;
  row.record.values.thickness_mm = thickness_mm;
  row.record.values.density_kg_m3 = 1500;
  row.record.values.youngs_modulus_gpa = 5;
  row.record.values.loss_factor = 0.01;
  row.keyword = keyword;
  return row;
}

/// A main window with a material database of its own: a copy of the shipped one.
struct MaterialsProgram {
  MaterialsProgram() : store(folder.filePath("Database.mdb").toStdString()) {
    std::filesystem::copy_file(std::filesystem::path(SHARE) / "Databases" / "Database" / "Database.mdb",
                               store.File());
    std::filesystem::permissions(store.File(), std::filesystem::perms::owner_all);
    fixture.services.materials = storage::MaterialLookupIn(store.File());
    fixture.services.material_names = [this](MaterialFamily family) { return store.List(family); };
    MakeWindow(
        [this](QWidget*, const WindowTools&, MaterialFamily, const std::string& name) { return edit(name); });
  }
  ~MaterialsProgram() { fixture.window.reset(); }

  /// Makes the window anew, with editors of its own.
  void MakeWindow(MaterialEditor editor) {
    fixture.window.reset();
    commands = std::make_unique<MaterialCommands>(
        fixture.open, fixture.services, fixture.services.places.settings, store.File(), std::move(editor));
    fixture.services.Add(*commands);
    fixture.MakeWindow();
    fixture.window->show();
  }

  void Choose(elements::Calculation calculation) {
    fixture.open.Edit([&](elements::Setup& setup) {
      calculation::SelectCalculation(setup, calculation);
      setup.cavity.kind = elements::CavityKind::kGenericMaterial;
      for (const LayerGroup group :
           {LayerGroup::kSeaDamping1, LayerGroup::kSeaDamping2, LayerGroup::kSeaCavityDamping})
        calculation::TickDamping(setup, group, 1, true);
      calculation::ChooseSeaCavityType(setup, elements::SeaCavityType::kFibreMassFibreMassFibre);
    });
  }
  MaterialBox* List(LayerGroup group, int row) const {
    return fixture.Find<MaterialBox>(ArrayName(RowOf(group).list, row));
  }
  QStringList Offered(LayerGroup group) const {
    QStringList names;
    const MaterialBox* list = List(group, 0);
    for (int i = 0; i < list->count(); ++i) names << list->itemText(i);
    return names;
  }
  calculation::LayerText Layer(LayerGroup group, int row) const {
    return calculation::LayerTextOf(fixture.open.Setup(), group, row);
  }
  QDialog* OpenList() const {
    fixture.Find<QAction>("mnuDatabaseVediMateriali")->trigger();
    return fixture.Find<QDialog>("Form2");
  }
  QDialog* OpenTree() const {
    fixture.Find<QAction>("DB_base")->trigger();
    return fixture.Find<QDialog>("FormSceltaMateriali");
  }
  static void Search(const QDialog& window, const QString& text) {
    auto* search = window.findChild<QLineEdit*>("TextCerca");
    search->clear();
    QTest::keyClicks(search, text);
  }
  static void Press(const QDialog& window, const char* button) {
    QTest::mouseClick(window.findChild<QPushButton*>(button), Qt::LeftButton);
  }
  /// The names under the first root of the tree.
  static QStringList Walls(const QDialog& tree) {
    const QAbstractItemModel* model = tree.findChild<QTreeView*>("Treeview1")->model();
    QStringList names;
    for (int row = 0; row < model->rowCount(model->index(0, 0)); ++row)
      names << model->index(row, 0, model->index(0, 0)).data().toString();
    return names;
  }

  QTemporaryDir folder;
  storage::MaterialStore store;
  std::function<std::optional<MaterialChange>(const std::string& name)> edit = [](const std::string&) {
    return std::nullopt;
  };
  WindowFixture fixture;
  std::unique_ptr<MaterialCommands> commands;
};

}  // namespace velmar::shell
