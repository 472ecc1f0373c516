#pragma once

#include <QString>
#include <QStringList>
#include <QStringListModel>
#include <array>
#include <vector>

#include "elements/layer_groups.h"
#include "materials/keywords.h"
#include "presentation/texts/words.h"
#include "shell/fields/material_change.h"
#include "shell/page_parts/known_materials.h"
#include "shell/page_parts/page_services.h"

namespace velmar::shell {

/// The keyword filters of the window.
enum class FilterId { kLeaf1, kLeaf2, kResilient, kCavity };
inline constexpr std::size_t kFilterCount = 4;

/// The names that the material lists offer. All lists under one filter share one model, so that thousands of
/// materials cost their memory once.
class MaterialLists {
 public:
  MaterialLists(const presentation::Words& words, const PageServices& services);

  /// What a user reaches for is remembered in `file` from now on; empty: until the program ends.
  void Remember(const std::filesystem::path& file) { known_ = KnownMaterials(file); }
  KnownMaterials& Known() { return known_; }
  /// Favourites and what was used last stand first in what the rows of `group` offer.
  void PutOnTop(elements::LayerGroup group);

  /// Reads the tables again, as after an edit of the material database. The filters keep their keywords.
  void Reload();

  /// A material was stored by an editor. Lists that let it pass take it behind the others; a new name takes
  /// the place of the old one in the same way. Two habits are kept: the lists of damping layers in the cavity
  /// show a new or renamed material after the next Reload() only, and a material without a keyword joins the
  /// lists under "porte" when their filter is chosen again.
  void Follow(const MaterialChange& change);
  /// A material was deleted: no list offers it any longer.
  void Forget(elements::MaterialFamily family, const std::string& name);

  /// What the rows of `group` offer; owned by this object.
  QStringListModel* NamesOf(elements::LayerGroup group);

  QStringList Keywords(FilterId filter) const;
  QString Keyword(FilterId filter) const { return chosen_.at(static_cast<std::size_t>(filter)); }
  void Choose(FilterId filter, const QString& keyword);

 private:
  void Fill(FilterId filter);
  std::vector<storage::ListedMaterial>& Of(elements::MaterialFamily family);

  const PageServices& services_;
  materials::KeywordTexts words_;
  std::array<std::vector<storage::ListedMaterial>, 3> materials_;  ///< by MaterialFamily
  std::array<QString, kFilterCount> chosen_;
  std::array<QStringListModel, kFilterCount> filtered_;
  std::array<QStringListModel, 3> all_;
  QStringListModel cavity_damping_;
  KnownMaterials known_{};
};

}  // namespace velmar::shell
