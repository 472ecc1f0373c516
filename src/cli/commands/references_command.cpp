#include "cli/commands/references_command.h"

#include <ostream>

#include <nlohmann/json.hpp>

#include "cli/output/outcome_json.h"
#include "presentation/texts/references.h"

namespace velmar::cli {

ExitCode Execute(const ReferencesCommand& command, const presentation::Words& words, std::ostream& out) {
  nlohmann::json list = nlohmann::json::array();
  for (const presentation::Reference& reference : presentation::AllReferences(words)) {
    if (!command.json) {
      out << reference.text << '\n';
      continue;
    }
    nlohmann::json entry = {{"kind", presentation::KindText(reference.kind)},
                            {"text", reference.text},
                            {"calculations", reference.calculations}};
    if (reference.mark != 0) entry["mark"] = reference.mark;
    list.push_back(std::move(entry));
  }
  if (command.json) WriteJson(list, out);
  return ExitCode::kDone;
}

}  // namespace velmar::cli
