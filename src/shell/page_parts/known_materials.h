#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <filesystem>

#include "elements/layer_groups.h"

namespace velmar::shell {

/// The materials that a user reaches for: favourites, and those used last. Kept in a file of the user's own
/// from one start to the next.
class KnownMaterials {
 public:
  static constexpr int kMostUsed = 6;

  /// @param file empty: nothing is remembered beyond the end of the program
  explicit KnownMaterials(std::filesystem::path file = {});

  /// `name` was put into a layer.
  void Use(elements::MaterialFamily family, const QString& name);
  bool IsFavourite(elements::MaterialFamily family, const QString& name) const;
  void SetFavourite(elements::MaterialFamily family, const QString& name, bool favourite);

  /// `names` with the favourites first, then those used last, the latest first, then all others in their
  /// order. No name comes or goes.
  QStringList OnTop(elements::MaterialFamily family, const QStringList& names) const;

 private:
  struct Kept {
    QStringList favourites{};
    QStringList used{};
  };
  Kept& Of(elements::MaterialFamily family);
  const Kept& Of(elements::MaterialFamily family) const;
  void Save(elements::MaterialFamily family) const;

  std::filesystem::path file_;
  std::array<Kept, 3> kept_{};
};

}  // namespace velmar::shell
