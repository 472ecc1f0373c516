#include "cli/parsing/command_line.h"

#include <algorithm>
#include <exception>
#include <ostream>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/output/failure_report.h"
#include "cli/parsing/commands.h"
#include "cli/parsing/usage_words.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "foundation/utf8.h"

namespace velmar::cli {
namespace {

constexpr std::string_view kDataOption = "--data";

/// Rates the one kind of sound that is asked for.
ExitCode Rate(const Parsed& parsed, const presentation::Words& words, std::ostream& out,
              std::ostream& errors) {
  if (parsed.airborne != parsed.rate.impact) return Execute(parsed.rate, words, out, errors);
  errors << words(kKindOfSoundRow) << '\n';
  return ExitCode::kWrongUsage;
}

/// Reports of projects, or the check of a template.
ExitCode Report(const CLI::App& app, const ReportCommand& command, const Services& services,
                std::ostream& out, std::ostream& errors) {
  if (command.checked_template) return CheckTemplate(*command.checked_template, services, out, errors);
  if (!command.projects.empty()) return Execute(command, services, errors);
  const CLI::RequiredError missing("FILE");
  errors << WrongUsage(missing, app, services.words) << '\n' << services.words(kWrongUsageRow) << '\n';
  return ExitCode::kWrongUsage;
}

ExitCode ExecuteParsed(const CLI::App& app, Parsed& parsed, const Services& services, std::ostream& out,
                       std::ostream& errors) {
  parsed.run.go_on_outside_ranges = parsed.answer == "yes";
  parsed.report.go_on_outside_ranges = parsed.run.go_on_outside_ranges;
  if (app.got_subcommand("run")) return Execute(parsed.run, services, out, errors);
  if (app.got_subcommand("save")) return Execute(parsed.save, services, errors);
  if (app.got_subcommand("rate")) return Rate(parsed, services.words, out, errors);
  if (app.got_subcommand("materials")) return Execute(parsed.materials, services, out, errors);
  parsed.save_result.go_on_outside_ranges = parsed.answer == "yes";
  if (app.got_subcommand("facade")) return Execute(parsed.facade, services, errors);
  if (app.got_subcommand("results") && app.get_subcommand("results")->got_subcommand("save")) {
    return Execute(parsed.save_result, services, out, errors);
  }
  if (app.got_subcommand("results")) return Execute(parsed.results, services, out, errors);
  if (parsed.changes_own_measurements) return Execute(parsed.own_measurements, services, out, errors);
  if (app.got_subcommand("library")) return Execute(parsed.library, services, out, errors);
  if (app.got_subcommand("import")) return Execute(parsed.import, services, out, errors);
  parsed.models.go_on_outside_ranges = parsed.answer == "yes";
  if (app.got_subcommand("models")) return Execute(parsed.models, services, out, errors);
  if (app.got_subcommand("profile")) return Execute(parsed.profile, services, out, errors);
  if (app.got_subcommand("validate")) return Execute(parsed.validate, services, out, errors);
  if (app.got_subcommand("references")) return Execute(parsed.references, services.words, out);
  if (app.got_subcommand("report")) return Report(app, parsed.report, services, out, errors);
  if (app.got_subcommand(kDoctorCommand)) return Execute(parsed.doctor, services, out);
  return Execute(parsed.catalogue, services.words, out);
}

/// What --data names among `arguments`, looked for before they are parsed: the help is already in the
/// language that the data folder holds.
std::optional<std::filesystem::path> DataFolderIn(std::span<const std::string> arguments) {
  for (std::size_t i = 0; i < arguments.size() && arguments[i] != "--"; ++i) {
    if (arguments[i] == kDataOption && i + 1 < arguments.size()) return arguments[i + 1];
    if (arguments[i].starts_with("--data=")) return arguments[i].substr(kDataOption.size() + 1);
  }
  return std::nullopt;
}

/// The first of `arguments` that is not UTF-8.
std::optional<std::string> BrokenArgument(std::span<const std::string> arguments) {
  const auto found = std::ranges::find_if_not(arguments, IsUtf8);
  return found == arguments.end() ? std::nullopt : std::optional(*found);
}

ExitCode ParseAndExecute(std::span<const std::string> arguments, const Services& services, std::ostream& out,
                         std::ostream& errors) {
  Parsed parsed;
  const presentation::Words& words = services.words;
  CLI::App app(words(kProgramHelpRow), "velmar");
  AddCommands(app, parsed, services);
  SayHelpIn(words, app);
  try {
    std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
    app.parse(reversed);
  } catch (const CLI::Success& asked_for_help) {
    app.exit(asked_for_help, out, errors);
    return ExitCode::kDone;
  } catch (const CLI::ParseError& error) {
    errors << WrongUsage(error, app, words) << '\n' << words(kWrongUsageRow) << '\n';
    return ExitCode::kWrongUsage;
  }
  if (const auto broken = BrokenArgument(arguments); broken && !app.got_subcommand("report")) {
    errors << words(kArgumentNotUtf8Row) << ' ' << WithReplacements(*broken) << '\n';
    return ExitCode::kFailed;
  }
  return ExecuteParsed(app, parsed, services, out, errors);
}

/// The first of `arguments` that is neither an option nor the value of --data.
std::string CommandIn(std::span<const std::string> arguments) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i] == kDataOption) {
      ++i;
    } else if (!arguments[i].starts_with('-')) {
      return arguments[i];
    }
  }
  return {};
}

Opening OpeningOf(std::span<const std::string> arguments) {
  return {.data_folder = DataFolderIn(arguments), .mends = CommandIn(arguments) == kDoctorCommand};
}

ExitCode RunGuarded(std::span<const std::string> arguments, const OpenServices& open_services,
                    std::ostream& out, std::ostream& errors) {
  // Without a catalogue only literal words can be shown; a failure that early carries them.
  presentation::Words words = [](MessageRow) { return std::string(); };
  try {
    const Services services = open_services(OpeningOf(arguments));
    words = services.words;
    const ExitCode code = ParseAndExecute(arguments, services, out, errors);
    // A result that went nowhere is none.
    if (out.flush()) return code;
    errors << words(kOutputNotWrittenRow) << '\n';
    return ExitCode::kFailed;
  } catch (const std::exception& exception) {
    return TellException(exception, words, errors);
  }
}

}  // namespace

int RunCommandLine(std::span<const std::string> arguments, const OpenServices& open_services,
                   std::ostream& out, std::ostream& errors) {
  try {
    return static_cast<int>(RunGuarded(arguments, open_services, out, errors));
  } catch (...) {
    return static_cast<int>(ExitCode::kFailed);
  }
}

}  // namespace velmar::cli
