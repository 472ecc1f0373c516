#include "shell/commands/material_commands.h"

#include <QPointer>
#include <QSettings>
#include <utility>

#include "calculation/layer_edits.h"
#include "foundation/message_rows.h"
#include "shell/commands/command_table.h"
#include "shell/fields/material_box.h"
#include "shell/fields/phrases.h"
#include "shell/material_editors/edit_material.h"
#include "shell/materials/material_list_window.h"
#include "shell/materials/material_tree_window.h"
#include "shell/materials/store_source.h"

namespace velmar::shell {
namespace {

using elements::MaterialFamily;

/// The material list that had the focus last in `window`; null when something else had it.
MaterialBox* LastList(const QWidget* window) {
  return window == nullptr ? nullptr : dynamic_cast<MaterialBox*>(window->focusWidget());
}

}  // namespace

MaterialEditor EditorOf(storage::MaterialStore& store, const presentation::Words& words) {
  const materials::KeywordTexts texts{words(kAllKeywordsRow), words(kNotSpecifiedRow)};
  return [&store, texts](QWidget* parent, const WindowTools& tools, MaterialFamily family,
                         const std::string& name) {
    return material_editors::EditMaterial(parent, tools, store, texts, family, name);
  };
}

class MaterialCommands::Windows {
 public:
  Windows(WindowServices& services, const std::filesystem::path& database, MaterialEditor editor)
      : services_(services), source_(StoredMaterials(database)) {
    services.material_news = &news_;
    tools_.words = services.words;
    tools_.ask = services.boxes.ask;
    tools_.tell = [tell = services.boxes.tell](const QString& text) { tell(Tone::kCritical, text); };
    if (!services.places.settings.empty()) {
      const std::filesystem::path file = services.places.settings.parent_path() / "materiali.ini";
      memory_ = std::make_unique<QSettings>(QString::fromStdString(file.string()), QSettings::IniFormat);
      tools_.memory = memory_.get();
    }
    if (!editor) return;
    source_.edit = [this, editor = std::move(editor)](QWidget* parent, MaterialFamily family,
                                                      const std::string& name) {
      return editor(parent, tools_, family, name);
    };
  }

  void ShowList(QWidget* parent, const std::optional<LayerPick>& pick) {
    std::optional<MaterialPick> wanted;
    if (pick) {
      wanted = {RowOf(pick->group).family,
                calculation::LayerTextOf(services_.open.Setup(), pick->group, pick->row).listed,
                [this, pick](const std::string& name) { Put(*pick, name); }};
    }
    auto* window = new MaterialListWindow(tools_, source_, std::move(wanted), MakeListener(), parent);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowModality(Qt::WindowModal);
    window->show();
  }

  void ShowTree(QWidget* parent) {
    if (!tree_) {
      tree_ = new MaterialTreeWindow(
          tools_, source_,
          [main = QPointer(parent)](const DraggedMaterial& material) {
            MaterialBox* list = LastList(main);
            return list != nullptr && list->isVisible() && list->Put(material);
          },
          parent);
      tree_->setAttribute(Qt::WA_DeleteOnClose);
    }
    tree_->show();
    tree_->raise();
    tree_->activateWindow();
  }

 private:
  MaterialListWindow::Listener MakeListener() {
    MaterialListWindow::Listener listener;
    listener.changed = [this](const MaterialChange& change) {
      emit news_.Changed(change);
      if (tree_) tree_->Refresh(change.family);
    };
    listener.removed = [this](MaterialFamily family, const std::string& name) {
      emit news_.Removed(family, name);
      if (tree_) tree_->Refresh(family);
    };
    listener.refreshed = [this] {
      emit news_.Reread();
      if (tree_) tree_->Refresh();
    };
    return listener;
  }

  void Put(const LayerPick& pick, const std::string& name) {
    services_.open.Edit([&](elements::Setup& setup) {
      calculation::PutMaterial(setup, pick.group, pick.row, name, services_.materials);
    });
  }

  MaterialNews news_;
  WindowServices& services_;
  WindowTools tools_;
  MaterialSource source_;
  std::unique_ptr<QSettings> memory_;
  QPointer<MaterialTreeWindow> tree_;
};

MaterialCommands::MaterialCommands(WindowServices& services, const std::filesystem::path& database,
                                   MaterialEditor editor)
    : windows_(std::make_unique<Windows>(services, database, std::move(editor))) {
  Windows* windows = windows_.get();
  services.pick_material = [windows](QWidget* parent, const LayerPick& pick) {
    windows->ShowList(parent, pick);
  };
  services.command_windows[CommandId::kMaterialList] = [windows](QWidget* parent) {
    windows->ShowList(parent, std::nullopt);
  };
  services.command_windows[CommandId::kBaseMaterials] = [windows](QWidget* parent) {
    windows->ShowTree(parent);
  };
}

MaterialCommands::~MaterialCommands() = default;

}  // namespace velmar::shell
