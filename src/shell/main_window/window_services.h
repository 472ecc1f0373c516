#pragma once

#include <filesystem>

#include "calculation/open/open_calculation.h"
#include "shell/commands/help_commands.h"
#include "shell/commands/material_commands.h"
#include "shell/commands/paper_commands.h"
#include "shell/commands/report_commands.h"
#include "shell/commands/structure_commands.h"
#include "shell/page_parts/page_services.h"
#include "shell/project/project_services.h"
#include "shell/results/chart_overlay.h"
#include "shell/windows/boxes.h"
#include "validation/known_accuracy.h"

namespace velmar::shell {

/// Where the program finds what it hands to the system, and where it keeps its own.
struct WindowPlaces : HelpPlaces, ProjectPlaces {
  std::filesystem::path settings{};  ///< sizes and recent projects; empty: nothing is remembered
  std::filesystem::path recovery{};  ///< folder of the copies of unsaved work; empty: none are made
};

/// All that a main window is made of beyond itself; each of its parts is handed the one that it uses.
struct WindowServices : Speech, PageServices, ProjectServices, HelpServices {
  explicit WindowServices(calculation::OpenCalculation& calculation) : open(calculation) {}

  /// The windows on structures are `commands` from now on, which live as long as the main window.
  void Add(StructureCommands& commands) {
    commands.Serve(*this);
    structure_commands = &commands;
    overlay = &commands.Comparison();
  }
  /// The windows on materials are `commands` from now on, which live as long as the main window.
  void Add(MaterialCommands& commands) {
    commands.Serve(*this);
    material_commands = &commands;
  }

  calculation::OpenCalculation& open;
  validation::KnownAccuracy accuracy{};  ///< of the errors of the models
  WindowPlaces places{};
  ChartOverlay* overlay = nullptr;
  // A window that this program does not have is null; its command says so.
  StructureCommands* structure_commands = nullptr;
  MaterialCommands* material_commands = nullptr;
  PaperCommands* paper_commands = nullptr;
  ReportCommands* report_commands = nullptr;
  DocumentServices* documents = nullptr;
};

}  // namespace velmar::shell
