#include "shell/commands/material_commands.h"

#include <utility>

#include "calculation/edits/layer_edits.h"
#include "foundation/message_rows.h"
#include "foundation/utf8.h"
#include "materials/copied_material.h"
#include "materials/keywords.h"
#include "shell/fields/put_material.h"
#include "shell/material_editors/edit_material.h"
#include "shell/materials/store_source.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {

using elements::MaterialFamily;

MaterialEditor EditorOf(storage::MaterialStore& store, const presentation::Words& words) {
  const materials::KeywordTexts texts{words(kAllKeywordsRow), words(kNotSpecifiedRow)};
  return [&store, texts](QWidget* parent, const WindowTools& tools, MaterialFamily family,
                         const std::string& name) {
    return material_editors::EditMaterial(parent, tools, store, texts, family, name);
  };
}

MaterialCommands::MaterialCommands(calculation::OpenCalculation& open, const Speech& speech,
                                   const std::filesystem::path& settings,
                                   const std::filesystem::path& database, MaterialEditor editor)
    : open_(open),
      own_(speech, settings, "materiali.ini"),
      store_(database),
      source_(StoredMaterials(database)) {
  if (!editor) return;
  source_.edit = [this, editor = std::move(editor)](QWidget* parent, MaterialFamily family,
                                                    const std::string& name) {
    return editor(parent, own_.tools, family, name);
  };
}

void MaterialCommands::Serve(PageServices& pages) {
  pages.duplicate_material = [this, &pages](QWidget* parent, const LayerPick& pick) {
    Duplicate(parent, pick, pages);
  };
  pages.pick_material = [this, &pages](QWidget* parent, const LayerPick& pick) {
    const auto put = [this, &pages, pick](const std::string& name) {
      open_.Edit([&](elements::Setup& setup) {
        calculation::PutMaterial(setup, pick.group, pick.row, name, pages.materials);
      });
    };
    Open(parent, MaterialPick{RowOf(pick.group).family,
                              calculation::LayerTextOf(open_.Setup(), pick.group, pick.row).listed, put});
  };
}

void MaterialCommands::Duplicate(QWidget* parent, const LayerPick& pick, const PageServices& pages) {
  const MaterialFamily family = RowOf(pick.group).family;
  const calculation::LayerText row = calculation::LayerTextOf(open_.Setup(), pick.group, pick.row);
  std::optional<materials::CopiedMaterial> copy;
  if (!own_.tools.Try([&] { copy = materials::CopyMaterial(store_, family, row.listed); })) return;
  if (!copy) {
    own_.tools.Tell(own_.tools.Text(kEditedMaterialGoneRow) + ' ' + FromUtf8(row.listed));
    return;
  }
  const auto take = [&](const MaterialChange& change) {
    TellChange(change);
    open_.Edit([&](elements::Setup& setup) {
      calculation::PutMaterial(setup, pick.group, pick.row, change.name, pages.materials);
      if (!row.thickness_text.empty())
        calculation::EnterLayerThickness(setup, pick.group, pick.row, row.thickness_text);
    });
  };
  take({family, "", copy->name, copy->keyword});
  if (!source_.edit) return;
  if (const auto edited = source_.edit(parent, family, copy->name)) take(*edited);
}

void MaterialCommands::ShowList(QWidget* parent) { Open(parent, std::nullopt); }

void MaterialCommands::Open(QWidget* parent, std::optional<MaterialPick> wanted) {
  const auto used = [this](MaterialFamily family, const std::string& name) {
    return LayersThatHold(family, name);
  };
  auto* window = new MaterialListWindow(own_.tools, source_, std::move(wanted), used, parent);
  connect(window, &MaterialListWindow::Changed, this, &MaterialCommands::TellChange);
  connect(window, &MaterialListWindow::Removed, this, [this](MaterialFamily family, const std::string& name) {
    emit Removed(family, name);
    if (tree_) tree_->Refresh(family);
  });
  connect(window, &MaterialListWindow::Refreshed, this, [this] {
    emit Reread();
    if (tree_) tree_->Refresh();
  });
  if (where_) {
    window->LookForProjectsBy([this](MaterialFamily family, const std::string& name) {
      return [where = where_(), family, name](const std::atomic<bool>& stop) {
        return storage::FindMaterialUses(where, family, name, stop);
      };
    });
  }
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setWindowModality(Qt::WindowModal);
  window->show();
}

void MaterialCommands::ShowTree(QWidget* parent) {
  if (!tree_) {
    tree_ = new MaterialTreeWindow(
        own_.tools, source_,
        [main = QPointer(parent)](const DraggedMaterial& material) {
          return PutIntoFocusedField(main, material);
        },
        parent);
    tree_->setAttribute(Qt::WA_DeleteOnClose);
  }
  tree_->show();
  tree_->raise();
  tree_->activateWindow();
}

void MaterialCommands::TellChange(const MaterialChange& change) {
  emit Changed(change);
  if (tree_) tree_->Refresh(change.family);
}

std::vector<int> MaterialCommands::LayersThatHold(MaterialFamily family, const std::string& name) const {
  return storage::LayersHolding(open_.Setup(), family, name);
}

}  // namespace velmar::shell
