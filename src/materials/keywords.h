#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "elements/layer_groups.h"
#include "storage/materials/material_row.h"

namespace velmar::materials {

/// The two keywords that the message catalogue names.
struct KeywordTexts {
  std::string all{};            ///< the entry of a filter that lets everything pass
  std::string not_specified{};  ///< stands for a keyword that is missing
};

/// The entries of the keyword filter of `family` (`Combo7`, `Combo19`, `Combo8`): `all`, then every keyword
/// once, in the order of first appearance, without the one that says "not specified". That one is
/// `not_specified`, but for fibrous materials the literal "non specificato". A row without a keyword counts
/// as not specified.
std::vector<std::string> KeywordFilter(elements::MaterialFamily family,
                                       const std::vector<storage::ListedMaterial>& materials,
                                       const KeywordTexts& texts);

/// The names that the lists of `family` offer under `filter`: the materials of that keyword and, behind them,
/// those whose keyword is `not_specified` or missing; under `all` all, in the order of the table. Structural
/// materials without a keyword are not offered under "vetrate".
std::vector<std::string> NamesUnderFilter(elements::MaterialFamily family,
                                          const std::vector<storage::ListedMaterial>& materials,
                                          std::string_view filter, const KeywordTexts& texts);

/// Whether a material that was just added goes into lists that stand under `filter`. Here a structural
/// material without a keyword stays out of "porte" as well as "vetrate".
bool JoinsLists(elements::MaterialFamily family, std::string_view keyword, std::string_view filter,
                const KeywordTexts& texts);

}  // namespace velmar::materials
