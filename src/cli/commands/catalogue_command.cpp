#include "cli/commands/catalogue_command.h"

#include <ostream>
#include <string>

#include <nlohmann/json.hpp>

#include "cli/output/outcome_json.h"
#include "elements/catalogue.h"

namespace velmar::cli {

ExitCode Execute(const CatalogueCommand& command, const presentation::Words& words, std::ostream& out) {
  nlohmann::json list = nlohmann::json::array();
  for (const elements::CalculationRow& row : elements::Catalogue()) {
    if (!command.json) {
      out << FamilyText(row.family) << '\t' << row.variant << '\t' << OrientationText(row.orientation)
          << '\n';
      continue;
    }
    nlohmann::json entry = {{"family", FamilyText(row.family)},
                            {"variant", row.variant},
                            {"orientation", OrientationText(row.orientation)},
                            {"theory", presentation::InWords(row.theory.Line(), words)},
                            {"element_type", presentation::InWords(row.element_type.Line(), words)},
                            {"menu_group", row.menu_group},
                            {"menu_index", row.menu_index},
                            {"button", static_cast<int>(row.button)}};
    if (row.mark != 0) entry["relation"] = row.mark;
    list.push_back(std::move(entry));
  }
  if (command.json) WriteJson(list, out);
  return ExitCode::kDone;
}

}  // namespace velmar::cli
