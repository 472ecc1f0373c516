#include "shell/material_editors/edit_material.h"

#include <filesystem>
#include <type_traits>
#include <vector>

#include "elements/materials.h"
#include "foundation/message_rows.h"
#include "presentation/texts/words.h"
#include "shell/material_editors/edited_material.h"
#include "shell/material_editors/fibrous_editor.h"
#include "shell/material_editors/resilient_editor.h"
#include "shell/material_editors/structural_editor.h"
#include "shell/windows/phrases.h"
#include "storage/library/pictures.h"

namespace velmar::material_editors {
namespace {

constexpr const char* kFibrousPictures = "intercapedine";
constexpr const char* kResilientPictures = "Strati aggiuntivi orizzontali (DLw)";

/// All that opening an editor takes.
struct Opening {
  QWidget* parent = nullptr;
  const shell::WindowTools& tools;
  storage::MaterialStore& store;
  const materials::KeywordTexts& texts;
  elements::MaterialFamily family{};
  const std::string& name;
};

/// The file of `picture`, in the folder of pictures that stands beside the folder of the material database.
std::filesystem::path PictureOf(const Opening& opening, const std::string& picture) {
  const std::filesystem::path databases = opening.store.File().parent_path().parent_path();
  const bool fibrous = opening.family == elements::MaterialFamily::kFibrous;
  return storage::PictureFile(databases / "immagine", fibrous ? kFibrousPictures : kResilientPictures,
                              picture);
}

template <typename Editor, typename Material>
std::optional<shell::MaterialChange> Open(const Opening& opening) {
  std::vector<std::string> keywords;
  std::optional<storage::MaterialRow<Material>> row;
  const bool read = opening.tools.Try([&] {
    keywords = SuggestedKeywords(opening.store, opening.family, opening.texts);
    if (!opening.name.empty()) row = opening.store.Find<Material>(opening.name);
  });
  if (!read) return std::nullopt;
  if (!opening.name.empty() && !row) {
    const MessageLine gone{kEditedMaterialGoneRow, " " + opening.name};
    opening.tools.Tell(shell::FromUtf8(presentation::InWords(gone, opening.tools.words)));
    return std::nullopt;
  }
  const std::string picture = row ? row->picture : storage::kNoPicture;
  EditedMaterial<Material> material(opening.store, opening.texts, std::move(row));
  const auto run = [](EditorDialog&& editor) {
    editor.exec();
    return editor.Change();
  };
  if constexpr (std::is_same_v<Material, elements::StructuralMaterial>) {
    return run(Editor(opening.tools, std::move(material), keywords, opening.parent));
  } else {
    return run(
        Editor(opening.tools, std::move(material), keywords, PictureOf(opening, picture), opening.parent));
  }
}

}  // namespace

std::optional<shell::MaterialChange> EditMaterial(QWidget* parent, const shell::WindowTools& tools,
                                                  storage::MaterialStore& store,
                                                  const materials::KeywordTexts& texts,
                                                  elements::MaterialFamily family, const std::string& name) {
  const Opening opening{parent, tools, store, texts, family, name};
  switch (family) {
    case elements::MaterialFamily::kStructural:
      return Open<StructuralEditor, elements::StructuralMaterial>(opening);
    case elements::MaterialFamily::kFibrous:
      return Open<FibrousEditor, elements::FibrousMaterial>(opening);
    case elements::MaterialFamily::kResilient:
      return Open<ResilientEditor, elements::ResilientMaterial>(opening);
  }
  return std::nullopt;
}

}  // namespace velmar::material_editors
