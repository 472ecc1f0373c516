#pragma once

#include <QString>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "calculation/facade_parts.h"
#include "calculation/open_calculation.h"
#include "elements/layer_groups.h"
#include "elements/material_record.h"
#include "presentation/drawing/curve_chart.h"
#include "presentation/texts/words.h"
#include "shell/fields/boxes.h"
#include "storage/materials/material_row.h"

class QWidget;

namespace velmar::shell {

class MaterialNews;

enum class CommandId;

/// A layer row that asks for a material of the list.
struct LayerPick {
  elements::LayerGroup group{};
  int row = 0;  ///< from 0
};

/// What a stored result or a measurement is asked for: the base element, or a component of the facade.
struct ElementPick {
  int component = 0;  ///< 0: opaque part or base element; 1 to 9: a component
  QString caption{};  ///< of the window that offers it
};

/// Where the program finds what it hands to the system, and where it keeps its own.
struct WindowPlaces {
  std::filesystem::path manual{};
  std::filesystem::path maintenance_program{};
  std::filesystem::path examples{};  ///< folder of the shipped example projects
  std::filesystem::path settings{};  ///< sizes and recent projects; empty: nothing is remembered
  std::filesystem::path recovery{};  ///< folder of the copies of unsaved work; empty: none are made
  QString website{};                 ///< empty: the product names none
  QString contact{};                 ///< address behind "Contatta"; empty: none
};

/// Everything that the main window reaches beyond itself. A function that is empty is a window that this
/// program does not have; its command says so.
struct WindowServices {
  calculation::OpenCalculation& open;
  presentation::Words words{};
  elements::MaterialLookup materials{};
  /// All materials of a family in the order of their table.
  std::function<std::vector<storage::ListedMaterial>(elements::MaterialFamily)> material_names{};

  /// Names of the stored airborne results (`Combo14`, `Combo16`).
  std::function<std::vector<std::string>()> saved_results{};
  std::function<std::optional<calculation::FacadePart>(const std::string& name)> saved_result{};

  /// @throws Failure when the file cannot be read; nothing has changed then
  std::function<elements::Setup(const std::filesystem::path&)> read_project{};
  /// @throws Failure when the file cannot be written; the old one is untouched then
  std::function<void(const std::filesystem::path&, const elements::Setup&)> write_project{};

  Boxes boxes{};
  /// Hands a file or an address to the system. @return whether something opened it
  std::function<bool(const QString& address)> open_address{};
  /// Starts a program. @return whether it started
  std::function<bool(const std::filesystem::path&)> start_program{};

  // Windows of their own.
  std::function<void(QWidget* parent, const LayerPick&)> pick_material{};
  std::function<void(QWidget* parent, const ElementPick&)> pick_saved_result{};
  std::function<void(QWidget* parent, const ElementPick&)> pick_measured{};
  std::map<CommandId, std::function<void(QWidget* parent)>> command_windows{};
  /// Lays further curves over the chart of a result before it is shown.
  std::function<void(presentation::CurveChart&)> lay_over{};
  /// Tells what became of materials; none: nobody else changes them.
  const MaterialNews* material_news = nullptr;
  /// Told whenever a result goes: windows that show it close.
  std::function<void()> result_gone{};

  WindowPlaces places{};
  QString version{};
};

}  // namespace velmar::shell
