#pragma once

#include <filesystem>

#include "shell/pages/window_services.h"

namespace velmar::shell {

/// Export to Word and Excel, as windows of `services`: asks for a file, fills the template of `templates`,
/// writes the document whole or not at all, and says so. A missing template, a damaged one and a file that
/// cannot be written are told.
void AddReportCommands(WindowServices& services, const std::filesystem::path& templates);

}  // namespace velmar::shell
