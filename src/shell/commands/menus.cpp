#include "shell/commands/menus.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <initializer_list>

#include "foundation/message_rows.h"
#include "shell/commands/calculation_menu.h"
#include "shell/commands/command_set.h"
#include "shell/commands/help_commands.h"
#include "shell/documents/language_menu.h"
#include "shell/project/project_files.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using enum CommandId;

void Add(QMenu& menu, const CommandSet& commands, std::initializer_list<CommandId> ids) {
  for (const CommandId id : ids) menu.addAction(commands.Of(id));
}

QMenu* AddMenu(QMenuBar& bar, const presentation::Words& words, MessageRow row, const char* name) {
  QMenu* menu = bar.addMenu('&' + Text(words, row));
  menu->setObjectName(name);
  return menu;
}

}  // namespace

OpenMenus FillMenuBar(QMenuBar& bar, const CommandSet& commands, const CalculationActions& calculations,
                      const presentation::Words& words) {
  QMenu* file = AddMenu(bar, words, kFileMenuRow, "File");
  Add(*file, commands, {kNewProject, kOpenProject});
  QMenu* recent = file->addMenu(Text(words, kRecentMenuRow));
  recent->setObjectName("Recenti");
  Add(*file, commands, {kSaveProject, kSaveProjectAs, kSaveAsTemplate, kStoreResult});
  commands.Of(kSaveAsTemplate)->setVisible(commands.At().files.OwnTemplates().AreKept());
  file->addSeparator();
  Add(*file, commands,
      {kExportWord, kExportExcel, kReportProjects, kCheckTemplate, kPrint, kPrintPreview, kChoosePrinter});
  if (DocumentServices* documents = commands.At().documents)
    file->addMenu(new LanguageMenu(*documents, words, file));
  file->addSeparator();
  Add(*file, commands, {kProjectInformation, kStudioProfile});
  file->addSeparator();
  Add(*file, commands, {kExit});

  QMenu* database = AddMenu(bar, words, kDatabaseMenuRow, "Database");
  Add(*database, commands, {kSavedResults, kMaintenance});
  QMenu* measured = database->addMenu(Text(words, kMeasuredDataMenuRow));
  measured->setObjectName("DB_sperimentale");
  Add(*measured, commands, {kMeasuredLnw, kMeasuredRw});
  Add(*database, commands, {kBaseMaterials, kMaterialList});

  QMenu* geometry = AddMenu(bar, words, kGeometryMenuRow, "geometria");
  Add(*geometry, commands, {kDimensions});

  QMenu* calculation = AddMenu(bar, words, kCalculationMenuRow, "calcolo");
  QMenu* tree = calculation->addMenu(Text(words, kCalculationKindMenuRow));
  tree->setObjectName("tipo_di_calcolo");
  calculations.FillTree(*tree, words);
  calculation->addSeparator();
  Add(*calculation, commands, {kRun, kCompareBeside, kShowTable});

  QMenu* help = AddMenu(bar, words, kHelpMenuRow, "help");
  Add(*help, commands, {kHelpHere, kTutorial, kContact});
  const HelpCommands* reach = commands.At().help;
  commands.Of(kContact)->setVisible(reach != nullptr && reach->HasContact());
  commands.Of(kMaintenance)->setVisible(reach != nullptr && reach->HasMaintenance());
  help->addSeparator();
  Add(*help, commands, {kAbout});
  return {recent, calculation};
}

}  // namespace velmar::shell
