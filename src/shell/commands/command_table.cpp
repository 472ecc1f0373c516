#include "shell/commands/command_table.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <type_traits>

#include "foundation/message_rows.h"
#include "shell/commands/command_set.h"
#include "shell/commands/help_commands.h"
#include "shell/commands/material_commands.h"
#include "shell/commands/paper_commands.h"
#include "shell/commands/report_commands.h"
#include "shell/commands/run_command.h"
#include "shell/commands/structure_commands.h"
#include "shell/documents/studio_profile_dialog.h"
#include "shell/project/dimension_dialog.h"
#include "shell/project/project_files.h"
#include "shell/project/project_information_dialog.h"
#include "shell/results/open_table.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using enum CommandId;
using elements::ElementButton;
using N = Needs;

/// The command of a part of the desk that a program may lack.
template <auto part, auto slot>
void Of(CommandSet& commands) {
  const Desk& desk = commands.At();
  auto* owner = desk.*part;
  if (owner == nullptr) {
    desk.speech.boxes.tell(Tone::kInformation, Text(desk.speech.words, kNoWindowRow));
  } else if constexpr (std::is_invocable_v<decltype(slot), decltype(*owner), const Desk&>) {
    (owner->*slot)(desk);
  } else {
    (owner->*slot)(&desk.window);
  }
}

template <typename Window>
void Dialog(CommandSet& commands) {
  const Desk& desk = commands.At();
  Window(desk.open, desk.speech.words, &desk.window).exec();
}

void ShowStudioProfile(CommandSet& commands) {
  const Desk& desk = commands.At();
  if (desk.documents == nullptr)
    return desk.speech.boxes.tell(Tone::kInformation, Text(desk.speech.words, kNoWindowRow));
  StudioProfileDialog(*desk.documents, desk.speech, &desk.window).exec();
}

template <ElementButton kind>
void Begin(CommandSet& commands) {
  emit commands.KindChosen(kind);
}

// clang-format off
constexpr std::array<Command, kCommandCount> kCommands = {{
    Command{kOpenProject,        1,  "Apri_Progetto",             kOpenProjectMenuRow, kOpenProjectTipRow, "open",       "Ctrl+O", N::kNothing,
            [](CommandSet& all) { all.At().files.Open(); }},
    Command{kSaveProject,        2,  "Salva_Progetto",            kSaveProjectRow, kSaveProjectTipRow, "save",       "Ctrl+S", N::kCalculation,
            [](CommandSet& all) { all.At().files.Save(); }},
    Command{kStoreResult,        3,  "Salva",                     kStoreResultMenuRow, kStoreResultTipRow, "store",      "Ctrl+D", N::kResult,
            Of<&Desk::structures, &StructureCommands::Store>},
    Command{kPrintPreview,       5,  "Anteprima_stampa",          kPreviewRow, kPreviewTipRow, "preview",    "Ctrl+Shift+P", N::kCalculation,
            Of<&Desk::paper, &PaperCommands::Preview>},
    Command{kPrint,              6,  "stampa",                    kPrintRow, kPrintTipRow, "print",      "Ctrl+P", N::kCalculation,
            Of<&Desk::paper, &PaperCommands::Print>},
    Command{kExportWord,         8,  "mnuFileEsportaWord",        kExportWordMenuRow, kExportWordTipRow, "word",       "",       N::kResult,
            Of<&Desk::reports, &ReportCommands::ExportWord>},
    Command{kExportExcel,        9,  "esp_excel",                 kExportExcelMenuRow, kExportExcelTipRow, "excel",      "",       N::kResult,
            Of<&Desk::reports, &ReportCommands::ExportExcel>},
    Command{kRun,                11, "esegui_calcolo",            kRunMenuRow, kRunTipRow, "run",        "F5",     N::kCalculation,
            [](CommandSet& all) { RunOpenCalculation(all.At()); }},
    Command{kShowTable,          12, "tab_risultati",             kResultsTableMenuRow, kResultsTableTipRow, "table",      "F6",     N::kTableToBeShown,
            [](CommandSet& all) { all.At().table.Show(&all.At().window); }},
    Command{kCompare,            13, "",                          {}, kCompareTipRow, "compare",    "",       N::kSpectrum,
            Of<&Desk::structures, &StructureCommands::Compare>},
    Command{kDimensions,         15, "dim_pareti",                kDimensionsMenuRow, kDimensionsTipRow, "dimensions", "F4",     N::kCalculation,
            Dialog<DimensionDialog>},
    Command{kSingleWalls,        17, "",                          {}, kSingleWallsTipRow, "wall",       "",       N::kNothing,
            Begin<ElementButton::kSingleWall>},
    Command{kDoubleWalls,        18, "",                          {}, kDoubleWallsTipRow, "double-wall", "",      N::kNothing,
            Begin<ElementButton::kDoubleWall>},
    Command{kFloors,             19, "",                          {}, kFloorsTipRow, "floor",      "",       N::kNothing,
            Begin<ElementButton::kFloor>},
    Command{kFacades,            20, "",                          {}, kFacadesTipRow, "facade",     "",       N::kNothing,
            Begin<ElementButton::kFacade>},
    Command{kLinings,            21, "",                          {}, kLiningsTipRow, "lining",     "",       N::kNothing,
            Begin<ElementButton::kLining>},
    Command{kCeilings,           22, "",                          {}, kCeilingsTipRow, "ceiling",    "",       N::kNothing,
            Begin<ElementButton::kCeiling>},
    Command{kExitAsking,         23, "",                          {}, kExitTipRow, "exit",       "Ctrl+Q", N::kNothing,
            [](CommandSet& all) { emit all.ExitWanted(/*asking=*/true); }},
    Command{kNewProject,         0,  "nuovo_progetto",            kNewProjectMenuRow, {}, "",           "Ctrl+N", N::kNothing,
            [](CommandSet& all) { all.At().files.New(); }},
    Command{kSaveProjectAs,      0,  "salva_con_nome",            kSaveProjectAsRow, {}, "",           "Ctrl+Shift+S", N::kCalculation,
            [](CommandSet& all) { all.At().files.SaveAs(); }},
    Command{kProjectInformation, 0,  "info_progetto",             kProjectInformationMenuRow, {}, "information", "Ctrl+I", N::kCalculation,
            Dialog<ProjectInformationDialog>},
    Command{kExit,               0,  "esci",                      kExitMenuRow, {}, "",           "",       N::kNothing,
            [](CommandSet& all) { emit all.ExitWanted(/*asking=*/false); }},
    Command{kSavedResults,       0,  "DB_risultati",              kSavedResultsMenuRow, {}, "",           "",       N::kNothing,
            Of<&Desk::structures, &StructureCommands::ShowSavedResults>},
    Command{kMaintenance,        0,  "ges_database",              kMaintenanceMenuRow, {}, "",           "",       N::kNothing,
            Of<&Desk::help, &HelpCommands::StartMaintenance>},
    Command{kMeasuredLnw,        0,  "Dati_Lnw",                  kImpactDataMenuRow, {}, "",           "",       N::kNothing,
            Of<&Desk::structures, &StructureCommands::ShowImpactData>},
    Command{kMeasuredRw,         0,  "Dati_Rw",                   kAirborneDataMenuRow, {}, "",           "",       N::kNothing,
            Of<&Desk::structures, &StructureCommands::ShowAirborneData>},
    Command{kBaseMaterials,      0,  "DB_base",                   kBaseMaterialsMenuRow, {}, "",           "",       N::kNothing,
            Of<&Desk::materials, &MaterialCommands::ShowTree>},
    Command{kMaterialList,       0,  "mnuDatabaseVediMateriali",  kMaterialListMenuRow, {}, "",           "Ctrl+L", N::kNothing,
            Of<&Desk::materials, &MaterialCommands::ShowList>},
    Command{kCompareBeside,      0,  "confronta_risultati",       kCompareMenuRow, {}, "compare",    "F7",     N::kSpectrum,
            Of<&Desk::structures, &StructureCommands::Compare>},
    Command{kTutorial,           0,  "tutorial",                  kTutorialMenuRow, {}, "",           "",       N::kNothing,
            Of<&Desk::help, &HelpCommands::ShowManual>},
    Command{kContact,            0,  "Contatta_m",                kContactMenuRow, {}, "",           "",       N::kNothing,
            Of<&Desk::help, &HelpCommands::Contact>},
    Command{kAbout,              0,  "Versione",                  kAboutRow, {}, "",           "",       N::kNothing,
            Of<&Desk::help, &HelpCommands::ShowAbout>},
    Command{kChoosePrinter,      0,  "Scegli_stampante",          kChoosePrinterMenuRow, {}, "",           "",       N::kNothing,
            Of<&Desk::paper, &PaperCommands::ChoosePrinter>},
    Command{kStudioProfile,      0,  "profilo_studio",            kStudioMenuRow, {}, "",           "",       N::kNothing,
            ShowStudioProfile},
    Command{kSaveAsTemplate,     0,  "salva_come_modello",        kSaveAsTemplateRow, {}, "",           "",       N::kCalculation,
            [](CommandSet& all) { all.At().files.KeepAsTemplate(); }},
    Command{kHelpHere,           0,  "aiuto_qui",                 kHelpMenuRow, {}, "",           "F1",     N::kNothing,
            Of<&Desk::help, &HelpCommands::ShowHelp>},
    Command{kReportProjects,     0,  "relazione_progetti",        kScheduleMenuRow, {}, "",           "",       N::kNothing,
            Of<&Desk::reports, &ReportCommands::ReportProjects>},
    Command{kCheckTemplate,      0,  "controlla_modello",         kCheckTemplateMenuRow, {}, "",           "",       N::kNothing,
            Of<&Desk::reports, &ReportCommands::CheckTemplate>},
}};
// clang-format on

constexpr bool RowsStandInTheOrderOfTheirCommands() {
  for (std::size_t i = 0; i < kCommands.size(); ++i) {
    if (static_cast<std::size_t>(kCommands[i].id) != i) return false;
  }
  return true;
}
static_assert(RowsStandInTheOrderOfTheirCommands());

constexpr bool EachCommandActsAndHasWords() {
  return std::ranges::all_of(
      kCommands, [](const Command& row) { return row.action != nullptr && row.Caption() != MessageRow{}; });
}
static_assert(EachCommandActsAndHasWords());

/// Buttons, names and shortcuts belong to one command each; an empty one to none.
constexpr bool NothingIsGivenTwice() {
  for (std::size_t i = 0; i < kCommands.size(); ++i) {
    for (std::size_t j = i + 1; j < kCommands.size(); ++j) {
      const auto same = [](std::string_view one, std::string_view other) {
        return !one.empty() && one == other;
      };
      if (same(kCommands[i].control, kCommands[j].control) ||
          same(kCommands[i].shortcut, kCommands[j].shortcut) ||
          (kCommands[i].button != 0 && kCommands[i].button == kCommands[j].button))
        return false;
    }
  }
  return true;
}
static_assert(NothingIsGivenTwice());

}  // namespace

std::span<const Command> Commands() { return kCommands; }

const Command& RowOf(CommandId id) { return kCommands.at(static_cast<std::size_t>(id)); }

}  // namespace velmar::shell
