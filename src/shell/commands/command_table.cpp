#include "shell/commands/command_table.h"

#include <algorithm>
#include <array>

namespace velmar::shell {
namespace {

using enum CommandId;
using N = Needs;

// clang-format off
constexpr std::array kCommands = {
    Command{kOpenProject,        1,  "Apri_Progetto",             2,   298, "open",       "Ctrl+O", N::kNothing},
    Command{kSaveProject,        2,  "Salva_Progetto",            3,   299, "save",       "Ctrl+S", N::kCalculation},
    Command{kStoreResult,        3,  "Salva",                     4,   300, "store",      "Ctrl+D", N::kResult},
    Command{kPrintPreview,       5,  "Anteprima_stampa",          7,   302, "preview",    "Ctrl+Shift+P", N::kCalculation},
    Command{kPrint,              6,  "stampa",                    6,   303, "print",      "Ctrl+P", N::kCalculation},
    Command{kExportWord,         8,  "mnuFileEsportaWord",        100, 305, "word",       "",       N::kResult},
    Command{kExportExcel,        9,  "esp_excel",                 5,   306, "excel",      "",       N::kResult},
    Command{kRun,                11, "esegui_calcolo",            61,  308, "run",        "F5",     N::kCalculation},
    Command{kShowTable,          12, "tab_risultati",             63,  309, "table",      "F6",     N::kSpectrum},
    Command{kCompare,            13, "",                          0,   310, "compare",    "",       N::kSpectrum},
    Command{kDimensions,         15, "dim_pareti",                18,  312, "dimensions", "F4",     N::kCalculation},
    Command{kSingleWalls,        17, "",                          0,   314, "wall",       "",       N::kNothing},
    Command{kDoubleWalls,        18, "",                          0,   315, "double-wall", "",      N::kNothing},
    Command{kFloors,             19, "",                          0,   316, "floor",      "",       N::kNothing},
    Command{kFacades,            20, "",                          0,   317, "facade",     "",       N::kNothing},
    Command{kLinings,            21, "",                          0,   318, "lining",     "",       N::kNothing},
    Command{kCeilings,           22, "",                          0,   319, "ceiling",    "",       N::kNothing},
    Command{kExitAsking,         23, "",                          0,   320, "exit",       "Ctrl+Q", N::kNothing},
    Command{kProjectInformation, 0,  "info_progetto",             8,   0,   "information", "Ctrl+I", N::kCalculation},
    Command{kExit,               0,  "esci",                      9,   0,   "",           "",       N::kNothing},
    Command{kSavedResults,       0,  "DB_risultati",              11,  0,   "",           "",       N::kNothing},
    Command{kMaintenance,        0,  "ges_database",              12,  0,   "",           "",       N::kNothing},
    Command{kMeasuredLnw,        0,  "Dati_Lnw",                  14,  0,   "",           "",       N::kNothing},
    Command{kMeasuredRw,         0,  "Dati_Rw",                   15,  0,   "",           "",       N::kNothing},
    Command{kBaseMaterials,      0,  "DB_base",                   16,  0,   "",           "",       N::kNothing},
    Command{kMaterialList,       0,  "mnuDatabaseVediMateriali",  101, 0,   "",           "Ctrl+L", N::kNothing},
    Command{kCompareBeside,      0,  "confronta_risultati",       62,  0,   "compare",    "F7",     N::kSpectrum},
    Command{kTutorial,           0,  "tutorial",                  65,  0,   "",           "F1",     N::kNothing},
    Command{kContact,            0,  "Contatta_m",                66,  0,   "",           "",       N::kNothing},
    Command{kAbout,              0,  "Versione",                  67,  0,   "",           "",       N::kNothing},
    Command{kChoosePrinter,      0,  "Scegli_stampante",          1501, 0,  "",           "",       N::kNothing},
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
