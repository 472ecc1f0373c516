#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "elements/catalogue.h"
#include "foundation/message.h"

namespace velmar::shell {

class CommandSet;

enum class CommandId {
  kOpenProject,
  kSaveProject,
  kStoreResult,
  kPrintPreview,
  kPrint,
  kExportWord,
  kExportExcel,
  kRun,
  kShowTable,
  kCompare,  ///< the main window waits until the comparison is closed
  kDimensions,
  kSingleWalls,
  kDoubleWalls,
  kFloors,
  kFacades,
  kLinings,
  kCeilings,
  kExitAsking,
  kNewProject,
  kSaveProjectAs,
  kProjectInformation,
  kExit,
  kSavedResults,
  kMaintenance,
  kMeasuredLnw,
  kMeasuredRw,
  kBaseMaterials,
  kMaterialList,
  kCompareBeside,  ///< its entry in the menu
  kTutorial,
  kContact,
  kAbout,
  kChoosePrinter,
  kStudioProfile,
  kSaveAsTemplate,
  kHelpHere,
  kReportProjects,
  kCheckTemplate,
};
inline constexpr std::size_t kCommandCount = static_cast<std::size_t>(CommandId::kCheckTemplate) + 1;

/// What must be there before a command can do anything.
enum class Needs {
  kNothing,
  kCalculation,
  kResult,
  kSpectrum,        ///< a result of a calculation that has more than ratings
  kTableToBeShown,  ///< a spectrum, and its table is not open yet
};

/// One command of the program: menu entry, tool bar button, shortcut and what it does in one row. The tool
/// bar's separators are the numbers that no command has.
struct Command {
  CommandId id{};
  int button = 0;             ///< number in the tool bar, from 1; 0: none
  const char* control = "";   ///< name of the menu entry; a button without one is called by its number
  MessageRow caption{};       ///< of the menu entry
  MessageRow tip{};           ///< of the button; none: the caption
  const char* icon = "";      ///< name of the picture; empty: none
  const char* shortcut = "";  ///< in Qt's portable words
  Needs needs = Needs::kNothing;
  void (*action)(CommandSet& commands) = nullptr;

  /// What stands in menus.
  constexpr MessageRow Caption() const { return caption != MessageRow{} ? caption : tip; }
  /// The kind of element that the command begins; nothing for other commands.
  constexpr std::optional<elements::ElementButton> Kind() const {
    using elements::ElementButton;
    if (button < static_cast<int>(ElementButton::kSingleWall) ||
        button > static_cast<int>(ElementButton::kCeiling))
      return std::nullopt;
    return static_cast<ElementButton>(button);
  }
};

/// All commands: first the tool bar's in the order of its buttons.
std::span<const Command> Commands();

/// The row of `id`.
const Command& RowOf(CommandId id);

/// Number of places in the tool bar, separators included.
inline constexpr int kToolBarPlaces = 23;

}  // namespace velmar::shell
