#include "shell/page_parts/material_lists.h"

#include <QHash>
#include <algorithm>
#include <functional>
#include <limits>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using elements::LayerGroup;
using elements::MaterialFamily;

constexpr std::array kFamilies = {MaterialFamily::kStructural, MaterialFamily::kFibrous,
                                  MaterialFamily::kResilient};
constexpr std::array kFilters = {FilterId::kLeaf1, FilterId::kLeaf2, FilterId::kResilient, FilterId::kCavity};

MaterialFamily FamilyOf(FilterId filter) {
  switch (filter) {
    case FilterId::kLeaf1:
    case FilterId::kLeaf2:
      return MaterialFamily::kStructural;
    case FilterId::kResilient:
      return MaterialFamily::kResilient;
    case FilterId::kCavity:
      return MaterialFamily::kFibrous;
  }
  return MaterialFamily::kStructural;
}

QStringList ToList(const std::vector<std::string>& names) {
  QStringList list;
  list.reserve(static_cast<qsizetype>(names.size()));
  for (const std::string& name : names) list += FromUtf8(name);
  return list;
}

std::size_t At(MaterialFamily family) { return static_cast<std::size_t>(family); }
std::size_t At(FilterId filter) { return static_cast<std::size_t>(filter); }

/// A new name goes behind the others when it joins them; a changed one does where the old name stood.
void Follow(QStringListModel& offered, const MaterialChange& change, bool joins) {
  QStringList names = offered.stringList();
  const bool had_it = !change.old_name.empty() && names.removeOne(FromUtf8(change.old_name));
  if (change.old_name.empty() ? !joins : !had_it) return;
  names += FromUtf8(change.name);
  offered.setStringList(names);
}

void Forget(QStringListModel& offered, const QString& name) {
  QStringList names = offered.stringList();
  if (names.removeOne(name)) offered.setStringList(names);
}

}  // namespace

MaterialLists::MaterialLists(const presentation::Words& words, const PageServices& services)
    : services_(services), words_{words(kAllKeywordsRow), words(kNotSpecifiedRow)} {
  chosen_.fill(FromUtf8(words_.all));
  try {
    Reload();
  } catch (const Failure&) {
    // Empty lists, as the load of the databases told.
  }
}

void MaterialLists::Reload() {
  std::array<std::vector<storage::ListedMaterial>, kFamilies.size()> read;
  for (const MaterialFamily family : kFamilies) {
    if (services_.material_names) read.at(At(family)) = services_.material_names(family);
  }
  for (const MaterialFamily family : kFamilies) {
    auto& materials = materials_.at(At(family)) = std::move(read.at(At(family)));
    all_.at(At(family))
        .setStringList(ToList(materials::NamesUnderFilter(family, materials, words_.all, words_)));
  }
  cavity_damping_.setStringList(all_.at(At(MaterialFamily::kStructural)).stringList());
  for (const FilterId filter : kFilters) Fill(filter);
}

std::vector<storage::ListedMaterial>& MaterialLists::Of(MaterialFamily family) {
  return materials_.at(At(family));
}

void MaterialLists::Follow(const MaterialChange& change) {
  auto& materials = Of(change.family);
  const auto row = std::ranges::find(materials, change.old_name, &storage::ListedMaterial::name);
  if (change.old_name.empty()) {
    materials.push_back({change.name, change.keyword});
  } else if (row != materials.end()) {
    *row = {change.name, change.keyword};
  }
  if (change.old_name == change.name) return;
  shell::Follow(all_.at(At(change.family)), change, /*joins=*/true);
  for (const FilterId filter : kFilters) {
    if (FamilyOf(filter) != change.family) continue;
    const bool joins = materials::JoinsLists(change.family, change.keyword, ToUtf8(Keyword(filter)), words_);
    shell::Follow(filtered_.at(At(filter)), change, joins);
  }
}

void MaterialLists::Forget(MaterialFamily family, const std::string& name) {
  std::erase_if(Of(family), [&](const storage::ListedMaterial& material) { return material.name == name; });
  const QString gone = FromUtf8(name);
  shell::Forget(all_.at(At(family)), gone);
  for (const FilterId filter : kFilters) {
    if (FamilyOf(filter) == family) shell::Forget(filtered_.at(At(filter)), gone);
  }
  if (family == MaterialFamily::kStructural) shell::Forget(cavity_damping_, gone);
}

void MaterialLists::Fill(FilterId filter) {
  const MaterialFamily family = FamilyOf(filter);
  const std::string keyword = ToUtf8(Keyword(filter));
  filtered_.at(At(filter))
      .setStringList(ToList(materials::NamesUnderFilter(family, materials_.at(At(family)), keyword, words_)));
}

QStringListModel* MaterialLists::NamesOf(LayerGroup group) {
  switch (group) {
    case LayerGroup::kLeaf1:
      return &filtered_.at(At(FilterId::kLeaf1));
    case LayerGroup::kLeaf2:
      return &filtered_.at(At(FilterId::kLeaf2));
    case LayerGroup::kResilient:
      return &filtered_.at(At(FilterId::kResilient));
    case LayerGroup::kCavity:
      return &filtered_.at(At(FilterId::kCavity));
    case LayerGroup::kSeaCavityDamping:
      return &cavity_damping_;
    default:
      return &all_.at(At(RowOf(group).family));
  }
}

void MaterialLists::PutOnTop(LayerGroup group) {
  QStringListModel* offered = NamesOf(group);
  const MaterialFamily family = RowOf(group).family;
  const QStringList now = offered->stringList();
  // What stood on top before goes back to its place among the others.
  QHash<QString, qsizetype> places;
  for (const storage::ListedMaterial& material : Of(family))
    if (const QString name = FromUtf8(material.name); !places.contains(name))
      places.insert(name, places.size());
  QStringList names = now;
  std::ranges::stable_sort(names, std::ranges::less(), [&](const QString& name) {
    return places.value(name, std::numeric_limits<qsizetype>::max());
  });
  names = known_.OnTop(family, names);
  if (names != now) offered->setStringList(names);
}

QStringList MaterialLists::Keywords(FilterId filter) const {
  const MaterialFamily family = FamilyOf(filter);
  return ToList(materials::KeywordFilter(family, materials_.at(At(family)), words_));
}

void MaterialLists::Choose(FilterId filter, const QString& keyword) {
  chosen_.at(At(filter)) = keyword;
  Fill(filter);
}

}  // namespace velmar::shell
