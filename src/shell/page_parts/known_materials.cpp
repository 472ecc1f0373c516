#include "shell/page_parts/known_materials.h"

#include <QSettings>
#include <utility>

namespace velmar::shell {
namespace {

QString Key(const char* list, std::size_t family) {
  return QStringLiteral("materiali/") + list + QString::number(family);
}

}  // namespace

KnownMaterials::KnownMaterials(std::filesystem::path file) : file_(std::move(file)) {
  if (file_.empty()) return;
  const QSettings settings(QString::fromStdString(file_.string()), QSettings::IniFormat);
  for (std::size_t family = 0; family < kept_.size(); ++family) {
    kept_[family].favourites = settings.value(Key("preferiti", family)).toStringList();
    kept_[family].used = settings.value(Key("usati", family)).toStringList().mid(0, kMostUsed);
  }
}

KnownMaterials::Kept& KnownMaterials::Of(elements::MaterialFamily family) {
  return kept_.at(static_cast<std::size_t>(family));
}
const KnownMaterials::Kept& KnownMaterials::Of(elements::MaterialFamily family) const {
  return kept_.at(static_cast<std::size_t>(family));
}

void KnownMaterials::Save(elements::MaterialFamily family) const {
  if (file_.empty()) return;
  QSettings settings(QString::fromStdString(file_.string()), QSettings::IniFormat);
  const auto number = static_cast<std::size_t>(family);
  settings.setValue(Key("preferiti", number), Of(family).favourites);
  settings.setValue(Key("usati", number), Of(family).used);
}

void KnownMaterials::Use(elements::MaterialFamily family, const QString& name) {
  QStringList& used = Of(family).used;
  if (name.isEmpty() || (!used.isEmpty() && used.constFirst() == name)) return;
  used.removeAll(name);
  used.prepend(name);
  used = used.mid(0, kMostUsed);
  Save(family);
}

bool KnownMaterials::IsFavourite(elements::MaterialFamily family, const QString& name) const {
  return Of(family).favourites.contains(name);
}

void KnownMaterials::SetFavourite(elements::MaterialFamily family, const QString& name, bool favourite) {
  QStringList& favourites = Of(family).favourites;
  favourites.removeAll(name);
  if (favourite) favourites += name;
  favourites.sort(Qt::CaseInsensitive);
  Save(family);
}

QStringList KnownMaterials::OnTop(elements::MaterialFamily family, const QStringList& names) const {
  QStringList top;
  for (const QStringList& list : {Of(family).favourites, Of(family).used}) {
    for (const QString& name : list) {
      if (names.contains(name) && !top.contains(name)) top += name;
    }
  }
  if (top.isEmpty()) return names;
  QStringList all = top;
  all.reserve(names.size());
  // A name that a table holds twice stays in both its places but for the first.
  QStringList left = top;
  for (const QString& name : names) {
    if (!left.removeOne(name)) all += name;
  }
  return all;
}

}  // namespace velmar::shell
