#include "shell/material_editors/edit_material.h"

#include <vector>

#include "elements/materials.h"
#include "presentation/texts/words.h"
#include "shell/material_editors/edited_material.h"
#include "shell/material_editors/structural_editor.h"

namespace velmar::material_editors {
namespace {

/// All that opening an editor takes.
struct Opening {
  QWidget* parent = nullptr;
  const windows::WindowTools& tools;
  storage::MaterialStore& store;
  const storage::KeywordTexts& texts;
  elements::MaterialFamily family{};
  const std::string& name;
};

template <typename Editor, typename Material>
std::optional<windows::MaterialChange> Open(const Opening& opening) {
  std::vector<std::string> keywords;
  std::optional<storage::MaterialRow<Material>> row;
  const bool read = opening.tools.Try([&] {
    keywords = SuggestedKeywords(opening.store, opening.family, opening.texts);
    if (!opening.name.empty()) row = opening.store.Find<Material>(opening.name);
  });
  if (!read) return std::nullopt;
  if (!opening.name.empty() && !row) {
    const MessageLine gone{storage::kMaterialGoneRow, " " + opening.name};
    opening.tools.tell(windows::ToQt(presentation::InWords(gone, opening.tools.words)));
    return std::nullopt;
  }
  Editor editor(opening.tools, EditedMaterial<Material>(opening.store, opening.texts, std::move(row)),
                keywords, opening.parent);
  editor.exec();
  return editor.Change();
}

}  // namespace

std::optional<windows::MaterialChange> EditMaterial(QWidget* parent, const windows::WindowTools& tools,
                                                    storage::MaterialStore& store,
                                                    const storage::KeywordTexts& texts,
                                                    elements::MaterialFamily family,
                                                    const std::string& name) {
  const Opening opening{parent, tools, store, texts, family, name};
  switch (family) {
    case elements::MaterialFamily::kStructural:
      return Open<StructuralEditor, elements::StructuralMaterial>(opening);
    case elements::MaterialFamily::kFibrous:
    case elements::MaterialFamily::kResilient:
      break;
  }
  return std::nullopt;
}

}  // namespace velmar::material_editors
