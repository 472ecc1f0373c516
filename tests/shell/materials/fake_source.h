#pragma once

#include <QSettings>
#include <QStringList>
#include <QWidget>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "shell/materials/material_source.h"
#include "shell/windows/window_tools.h"
#include "storage/materials/material_row.h"
#include "tests/shell/windows/fake_boxes.h"

namespace velmar::shell {

/// Material tables in memory.
class FakeMaterials {
 public:
  /// Two walls, a lining of plasterboard, a wool, a foam without absorption, and a resilient mat.
  FakeMaterials();

  MaterialSource Source();

  std::vector<storage::StructuralRow> structural{};
  std::vector<storage::FibrousRow> fibrous{};
  std::vector<storage::ResilientRow> resilient{};
  bool locked = false;
  /// What an editor stores next, and the names it was opened with.
  std::optional<MaterialChange> edited{};
  std::vector<std::string> opened{};
};

storage::StructuralRow Wall(const std::string& name, double density, const std::string& keyword);

/// The one child of `window` called `name`.
template <typename Widget>
Widget& Child(const QWidget& window, const char* name) {
  auto* child = window.findChild<Widget*>(QLatin1String(name));
  if (child == nullptr) throw std::runtime_error(std::string("no control ") + name);
  return *child;
}

/// Saves what `window` looks like into the folder VELMAR_PICTURES, when that is set.
void Picture(QWidget& window, const QString& name);

}  // namespace velmar::shell
