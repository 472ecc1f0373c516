#include "shell/commands/command_table.h"

#include <algorithm>
#include <array>

#include "foundation/message_rows.h"

namespace velmar::shell {
namespace {

using enum CommandId;
using N = Needs;

// clang-format off
constexpr std::array kCommands = {
    Command{kOpenProject,        1,  "Apri_Progetto",             kOpenProjectMenuRow, kOpenProjectTipRow, "open",       "Ctrl+O", N::kNothing},
    Command{kSaveProject,        2,  "Salva_Progetto",            kSaveProjectRow, kSaveProjectTipRow, "save",       "Ctrl+S", N::kCalculation},
    Command{kStoreResult,        3,  "Salva",                     kStoreResultMenuRow, kStoreResultTipRow, "store",      "Ctrl+D", N::kResult},
    Command{kPrintPreview,       5,  "Anteprima_stampa",          kPreviewRow, kPreviewTipRow, "preview",    "Ctrl+Shift+P", N::kCalculation},
    Command{kPrint,              6,  "stampa",                    kPrintRow, kPrintTipRow, "print",      "Ctrl+P", N::kCalculation},
    Command{kExportWord,         8,  "mnuFileEsportaWord",        kExportWordMenuRow, kExportWordTipRow, "word",       "",       N::kResult},
    Command{kExportExcel,        9,  "esp_excel",                 kExportExcelMenuRow, kExportExcelTipRow, "excel",      "",       N::kResult},
    Command{kRun,                11, "esegui_calcolo",            kRunMenuRow, kRunTipRow, "run",        "F5",     N::kCalculation},
    Command{kShowTable,          12, "tab_risultati",             kResultsTableMenuRow, kResultsTableTipRow, "table",      "F6",     N::kSpectrum},
    Command{kCompare,            13, "",                          {}, kCompareTipRow, "compare",    "",       N::kSpectrum},
    Command{kDimensions,         15, "dim_pareti",                kDimensionsMenuRow, kDimensionsTipRow, "dimensions", "F4",     N::kCalculation},
    Command{kSingleWalls,        17, "",                          {}, kSingleWallsTipRow, "wall",       "",       N::kNothing},
    Command{kDoubleWalls,        18, "",                          {}, kDoubleWallsTipRow, "double-wall", "",      N::kNothing},
    Command{kFloors,             19, "",                          {}, kFloorsTipRow, "floor",      "",       N::kNothing},
    Command{kFacades,            20, "",                          {}, kFacadesTipRow, "facade",     "",       N::kNothing},
    Command{kLinings,            21, "",                          {}, kLiningsTipRow, "lining",     "",       N::kNothing},
    Command{kCeilings,           22, "",                          {}, kCeilingsTipRow, "ceiling",    "",       N::kNothing},
    Command{kExitAsking,         23, "",                          {}, kExitTipRow, "exit",       "Ctrl+Q", N::kNothing},
    Command{kProjectInformation, 0,  "info_progetto",             kProjectInformationMenuRow, {}, "information", "Ctrl+I", N::kCalculation},
    Command{kExit,               0,  "esci",                      kExitMenuRow, {}, "",           "",       N::kNothing},
    Command{kSavedResults,       0,  "DB_risultati",              kSavedResultsMenuRow, {}, "",           "",       N::kNothing},
    Command{kMaintenance,        0,  "ges_database",              kMaintenanceMenuRow, {}, "",           "",       N::kNothing},
    Command{kMeasuredLnw,        0,  "Dati_Lnw",                  kImpactDataMenuRow, {}, "",           "",       N::kNothing},
    Command{kMeasuredRw,         0,  "Dati_Rw",                   kAirborneDataMenuRow, {}, "",           "",       N::kNothing},
    Command{kBaseMaterials,      0,  "DB_base",                   kBaseMaterialsMenuRow, {}, "",           "",       N::kNothing},
    Command{kMaterialList,       0,  "mnuDatabaseVediMateriali",  kMaterialListMenuRow, {}, "",           "Ctrl+L", N::kNothing},
    Command{kCompareBeside,      0,  "confronta_risultati",       kCompareMenuRow, {}, "compare",    "F7",     N::kSpectrum},
    Command{kTutorial,           0,  "tutorial",                  kTutorialMenuRow, {}, "",           "F1",     N::kNothing},
    Command{kContact,            0,  "Contatta_m",                kContactMenuRow, {}, "",           "",       N::kNothing},
    Command{kAbout,              0,  "Versione",                  kAboutRow, {}, "",           "",       N::kNothing},
    Command{kChoosePrinter,      0,  "Scegli_stampante",          kChoosePrinterMenuRow, {}, "",           "",       N::kNothing},
};
// clang-format on

constexpr bool RowsStandInTheOrderOfTheirCommands() {
  for (std::size_t i = 0; i < kCommands.size(); ++i) {
    if (static_cast<std::size_t>(kCommands[i].id) != i) return false;
  }
  return true;
}
static_assert(RowsStandInTheOrderOfTheirCommands());

}  // namespace

std::span<const Command> Commands() { return kCommands; }

const Command& RowOf(CommandId id) { return kCommands.at(static_cast<std::size_t>(id)); }

}  // namespace velmar::shell
