#include "usage_builder/usage_of_velmar.h"

#include "cli/drawn/drawn_formats.h"
#include "cli/output/report_format.h"
#include "cli/parsing/commands.h"
#include "cli/parsing/usage_words.h"
#include "documents/template_file.h"
#include "storage/messages/message_table_reader.h"

namespace velmar::usage_builder {

UsageCommand UsageOfVelmar(const std::string& language, const std::filesystem::path& share) {
  const storage::MessageTable messages =
      storage::ReadMessageTable(share / "Databases/InterfMess.mdb", language);
  cli::Services services;
  services.words = [&messages](MessageRow row) { return messages.Text(row); };
  services.report_formats = {cli::CsvFormat()};
  for (cli::ReportFormat& format : cli::DrawnFormats({.templates = share / "Templates"}))
    services.report_formats.push_back(std::move(format));
  services.check_template = documents::CheckTemplateFile;
  services.together = cli::DrawnTogether([] { return documents::ScheduleTools(); });
  cli::Parsed parsed;
  CLI::App app;
  cli::AddCommands(app, parsed, services);
  cli::SayHelpIn(services.words, app);
  return UsageOf(app, "velmar");
}

}  // namespace velmar::usage_builder
