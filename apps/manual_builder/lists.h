#pragma once

#include <filesystem>

#include "manual_builder/directives.h"
#include "presentation/texts/words.h"

namespace velmar::manual {

/// The directive "calcoli": the menu entries of a group of calculations and what their ratings come from.
/// "riferimenti": every source that the program names, the experimental relations first.
void AddCalculationLists(const presentation::Words& words, Directives& directives);

/// The directive "tasti": the commands that have keys.
void AddKeyList(const presentation::Words& words, Directives& directives);

/// The directive "messaggi": what the program says and what to do about it, a group of the table `advice`
/// (columns "gruppo", "riga", "consiglio") at a time; the group "altri" has the sentences of the catalogue
/// that no other group tells and that are not in the group "-".
/// @param catalogues the tables of messages
/// @throws std::runtime_error when `advice` names a row that no catalogue has, or one twice
void AddMessageLists(const std::vector<std::filesystem::path>& catalogues,
                     const std::filesystem::path& advice, Directives& directives);

/// The directive "comandi": every command of the command line with its options.
void AddCommandList(const std::filesystem::path& share, Directives& directives);

/// The directive "materiali": how many materials of a family are shipped.
void AddMaterialCounts(const std::filesystem::path& database, Directives& directives);

}  // namespace velmar::manual
