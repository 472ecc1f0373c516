#pragma once

#include <filesystem>
#include <iosfwd>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "cli/commands/services.h"
#include "cli/output/exit_code.h"
#include "elements/studio_profile.h"

namespace velmar::cli {

/// `report FILE... --docx OUT | --xlsx OUT | --pdf OUT | --csv OUT | --svg OUT [--language it|en|it+en]
/// [--answer yes|no]`,
/// `report FILE... --together --docx OUT | --xlsx OUT | --pdf OUT [--title TEXT]`
struct ReportCommand {
  std::vector<std::filesystem::path> projects{};
  std::map<std::string, std::filesystem::path> targets{};   ///< by the format's extension; a file or a folder
  bool go_on_outside_ranges = false;                        ///< the answer to every question
  std::optional<elements::DocumentLanguage> language{};     ///< none: as the studio profile says
  std::optional<std::filesystem::path> checked_template{};  ///< no report: a template to be checked
  bool together = false;                                    ///< one document of all projects
  std::string title{};                                      ///< of that document; empty: the usual one
};

/// Says on `out` what is wrong with the document template `file`; writes nothing.
/// @return "failed" when a report made of it would not be as its author meant
ExitCode CheckTemplate(const std::filesystem::path& file, const Services& services, std::ostream& out,
                       std::ostream& errors);

/// Opens and runs every project and writes its reports, each file whole or not at all. A target that is a
/// folder takes files named after the projects; several projects need one. Targets that would meet each
/// other or a project are refused before anything is written. A project that fails does not stop the others.
/// Together, all projects stand in one document a format, which names those without a result.
/// Every message goes to `errors`, with several projects under the project's name.
/// @return the gravest code: failed before no result before done; together "some failed" when a document was
/// written that names projects without a result
ExitCode Execute(const ReportCommand& command, const Services& services, std::ostream& errors);

}  // namespace velmar::cli
