#pragma once

#include <QObject>
#include <string>

#include "elements/layer_groups.h"

namespace velmar::shell {

/// What the editor of a material has stored: the windows that show materials follow it.
struct MaterialChange {
  elements::MaterialFamily family{};
  std::string old_name{};  ///< the name before; empty: the row is new
  std::string name{};
  std::string keyword{};
};

/// Tells what became of the materials, so that all windows that show them follow.
class MaterialNews : public QObject {
  Q_OBJECT
 public:
  using QObject::QObject;

 signals:
  /// An editor stored a material.
  void Changed(const velmar::shell::MaterialChange& change) const;
  /// A material was deleted; a layer that holds it keeps it.
  void Removed(velmar::elements::MaterialFamily family, const std::string& name) const;
  /// The tables are to be read anew.
  void Reread() const;
};

}  // namespace velmar::shell
