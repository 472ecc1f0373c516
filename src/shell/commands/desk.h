#pragma once

#include "calculation/open/open_calculation.h"
#include "shell/windows/boxes.h"
#include "validation/known_accuracy.h"

class QWidget;

namespace velmar::shell {

class HelpCommands;
class MaterialCommands;
class OpenTable;
class PageContext;
class PaperCommands;
class ProjectFiles;
class ReportCommands;
struct DocumentServices;
class ResultsPanel;
class StructureCommands;

/// What the commands of a main window work with; all of it outlives them. A null pointer stands for windows
/// that this program does not have: a command that needs them says so.
struct Desk {
  QWidget& window;  ///< above which boxes and windows open
  calculation::OpenCalculation& open;
  const Speech& speech;
  const PageContext& pages;
  ProjectFiles& files;
  OpenTable& table;
  const ResultsPanel& results;
  const validation::KnownAccuracy& accuracy;
  HelpCommands* help = nullptr;
  StructureCommands* structures = nullptr;
  MaterialCommands* materials = nullptr;
  PaperCommands* paper = nullptr;
  ReportCommands* reports = nullptr;
  DocumentServices* documents = nullptr;
};

}  // namespace velmar::shell
