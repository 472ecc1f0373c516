#include "cli/command_line.h"

#include <map>
#include <ostream>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/catalogue_command.h"
#include "cli/facade_command.h"
#include "cli/import_command.h"
#include "cli/library_command.h"
#include "cli/materials_command.h"
#include "cli/outcome_table.h"
#include "cli/rate_command.h"
#include "cli/report_command.h"
#include "cli/results_command.h"
#include "cli/run_command.h"
#include "cli/save_command.h"
#include "cli/save_result_command.h"
#include "foundation/failure.h"

namespace velmar::cli {
namespace {

constexpr MessageRow kWrongUsageRow{1200};
constexpr MessageRow kProgramRow{1204};
constexpr MessageRow kDataOptionRow{1211};

/// Everything that the command line can say, filled by the parser.
struct Parsed {
  std::optional<std::string> data_folder{};
  std::string answer = "no";
  bool airborne = false;
  RunCommand run{};
  SaveCommand save{};
  RateCommand rate{};
  CatalogueCommand catalogue{};
  MaterialsCommand materials{};
  ResultsCommand results{};
  LibraryCommand library{};
  ImportCommand import{};
  ReportCommand report{};
  SaveResultCommand save_result{};
  FacadeCommand facade{};
};

void AddAnswer(CLI::App& command, Parsed& parsed, const presentation::Words& words) {
  command.add_option("--answer", parsed.answer, words({1210}))
      ->check(CLI::IsMember({"yes", "no"}))
      ->capture_default_str();
}

void AddRun(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand("run", words({1205}));
  command->add_option("PROJECT", parsed.run.project, words({1244}))->required();
  command->add_flag("--json", parsed.run.json, words({1209}));
  AddAnswer(*command, parsed, words);
}

void AddReport(CLI::App& app, Parsed& parsed, const Services& services) {
  CLI::App* command = app.add_subcommand("report", services.words({1295}));
  command->add_option("FILE", parsed.report.projects, services.words({1299}))->required();
  for (const ReportFormat& format : services.report_formats) {
    const auto take = [&parsed, extension = format.extension](const std::string& target) {
      parsed.report.targets[extension] = target;
    };
    command->add_option_function<std::string>("--" + format.extension, take, services.words(format.help));
  }
  AddAnswer(*command, parsed, services.words);
}

void AddSave(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand("save", words({1206}));
  command->add_option("IN", parsed.save.from, words({1245}))->required();
  command->add_option("OUT", parsed.save.to, words({1246}))->required();
}

void AddRate(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand("rate", words({1207}));
  auto* kind = command->add_option_group("kind");
  kind->add_flag("--airborne", parsed.airborne, words({1214}));
  kind->add_flag("--impact", parsed.rate.impact, words({1215}));
  kind->require_option(1);
  command->add_flag("--json", parsed.rate.json, words({1209}));
  command->add_option("VALUES", parsed.rate.values, words({1247}))->required();
}

void AddCatalogue(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand("catalogue", words({1208}));
  command->add_flag("--json", parsed.catalogue.json, words({1209}));
}

/// One of the commands that work on the material database.
CLI::App* AddMaterialsAction(CLI::App& group, Parsed& parsed, const presentation::Words& words,
                             const char* name, MessageRow help, MaterialsAction action) {
  using enum elements::MaterialFamily;
  static const std::map<std::string, elements::MaterialFamily> kFamilies = {
      {"structural", kStructural}, {"fibrous", kFibrous}, {"resilient", kResilient}};
  CLI::App* command = group.add_subcommand(name, words(help));
  command->add_option("--family", parsed.materials.family, words({1248}))
      ->transform(CLI::CheckedTransformer(kFamilies));
  command->add_flag("--json", parsed.materials.json, words({1209}));
  command->callback([&parsed, action] { parsed.materials.action = action; });
  return command;
}

void AddMaterials(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* group = app.add_subcommand("materials", words({1249}));
  group->require_subcommand(1);
  const auto add = [&](const char* name, MessageRow help, MaterialsAction action) {
    return AddMaterialsAction(*group, parsed, words, name, help, action);
  };
  add("list", {1255}, MaterialsAction::kList)
      ->add_option("--keyword", parsed.materials.keyword, words({1250}));
  const std::string settings = words({1254});
  const auto add_name = [&](CLI::App* command) {
    command->add_option("NAME", parsed.materials.name, words({1251}))->required();
    return command;
  };
  add_name(add("show", {1256}, MaterialsAction::kShow));
  add("add", {1257}, MaterialsAction::kAdd)
      ->add_option("SETTINGS", parsed.materials.settings, settings)
      ->required();
  add_name(add("edit", {1258}, MaterialsAction::kEdit))
      ->add_option("SETTINGS", parsed.materials.settings, settings)
      ->required();
  add_name(add("delete", {1259}, MaterialsAction::kDelete));
  add("import", {1260}, MaterialsAction::kImport)
      ->add_option("FILE", parsed.materials.file, words({1252}))
      ->required();
  add("export", {1261}, MaterialsAction::kExport)->add_option("FILE", parsed.materials.file, words({1253}));
}

void AddResults(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  using enum storage::ResultTable;
  static const std::map<std::string, storage::ResultTable> kTables = {
      {"airborne", kAirborne}, {"impact", kImpact}, {"lining", kLining}};
  CLI::App* group = app.add_subcommand("results", words({1262}));
  group->require_subcommand(1);
  const auto add = [&](const char* name, MessageRow help, ResultsAction action) {
    CLI::App* command = group->add_subcommand(name, words(help));
    CLI::Option* table = command->add_option("--table", parsed.results.table, words({1266}))
                             ->transform(CLI::CheckedTransformer(kTables));
    // What is deleted is to be named without doubt.
    if (action == ResultsAction::kDelete) table->required();
    command->add_flag("--json", parsed.results.json, words({1209}));
    if (action != ResultsAction::kList)
      command->add_option("NAME", parsed.results.name, words({1279}))->required();
    command->callback([&parsed, action] { parsed.results.action = action; });
  };
  add("list", {1263}, ResultsAction::kList);
  add("show", {1264}, ResultsAction::kShow);
  add("delete", {1265}, ResultsAction::kDelete);
  CLI::App* save = group->add_subcommand("save", words({1280}));
  save->add_option("PROJECT", parsed.save_result.project, words({1244}))->required();
  save->add_option("NAME", parsed.save_result.name, words({1279}))->required();
  AddAnswer(*save, parsed, words);
  save->add_flag("--json", parsed.save_result.json, words({1209}));
}

void AddFacade(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand("facade", words({1282}));
  command->add_option("IN", parsed.facade.from, words({1245}))->required();
  command->add_option("OUT", parsed.facade.to, words({1246}))->required();
  command->add_option("--opaque", parsed.facade.opaque, words({1283}));
  command->add_option("--component", parsed.facade.components, words({1284}))->expected(1)->take_all();
}

void AddLibrary(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* group = app.add_subcommand("library", words({1267}));
  group->require_subcommand(1);
  const auto add = [&](const char* name, MessageRow help, LibraryAction action) {
    CLI::App* command = group->add_subcommand(name, words(help));
    const bool show = action == LibraryAction::kShow;
    command->add_option("KIND", parsed.library.kind, words({1270}))->required(show);
    command->add_option("SERIES", parsed.library.series, words({1271}))->required(show);
    if (show) command->add_option("TEST", parsed.library.test, words({1272}))->required();
    command->add_flag("--json", parsed.library.json, words({1209}));
    command->callback([&parsed, action] { parsed.library.action = action; });
  };
  add("list", {1268}, LibraryAction::kList);
  add("show", {1269}, LibraryAction::kShow);
}

void AddImport(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand("import", words({1273}));
  command->add_option("FILE", parsed.import.file, words({1274}))->required();
  command->add_flag("--yes", parsed.import.yes, words({1275}));
  command->add_flag("--json", parsed.import.json, words({1209}));
}

ExitCode ExecuteParsed(const CLI::App& app, Parsed& parsed, const Services& services, std::ostream& out,
                       std::ostream& errors) {
  parsed.run.go_on_outside_ranges = parsed.answer == "yes";
  parsed.report.go_on_outside_ranges = parsed.run.go_on_outside_ranges;
  if (app.got_subcommand("run")) return Execute(parsed.run, services, out, errors);
  if (app.got_subcommand("save")) return Execute(parsed.save, services, errors);
  if (app.got_subcommand("rate")) return Execute(parsed.rate, services.words, out, errors);
  if (app.got_subcommand("materials")) return Execute(parsed.materials, services, out, errors);
  parsed.save_result.go_on_outside_ranges = parsed.answer == "yes";
  if (app.got_subcommand("facade")) return Execute(parsed.facade, services, errors);
  if (app.got_subcommand("results") && app.get_subcommand("results")->got_subcommand("save")) {
    return Execute(parsed.save_result, services, out, errors);
  }
  if (app.got_subcommand("results")) return Execute(parsed.results, services, out, errors);
  if (app.got_subcommand("library")) return Execute(parsed.library, services, out, errors);
  if (app.got_subcommand("import")) return Execute(parsed.import, services, out, errors);
  if (app.got_subcommand("report")) return Execute(parsed.report, services, errors);
  return Execute(parsed.catalogue, services.words, out);
}

/// What --data names among `arguments`, looked for before they are parsed: the help is already in the
/// language that the data folder holds.
std::optional<std::filesystem::path> DataFolderIn(std::span<const std::string> arguments) {
  constexpr std::string_view kOption = "--data";
  for (std::size_t i = 0; i < arguments.size() && arguments[i] != "--"; ++i) {
    if (arguments[i] == kOption && i + 1 < arguments.size()) return arguments[i + 1];
    if (arguments[i].starts_with("--data=")) return arguments[i].substr(kOption.size() + 1);
  }
  return std::nullopt;
}

int ParseAndExecute(std::span<const std::string> arguments, const Services& services, std::ostream& out,
                    std::ostream& errors) {
  Parsed parsed;
  const presentation::Words& words = services.words;
  CLI::App app(words(kProgramRow), "velmar");
  app.require_subcommand(1);
  app.fallthrough();
  app.add_option("--data", parsed.data_folder, words(kDataOptionRow));
  AddRun(app, parsed, words);
  AddSave(app, parsed, words);
  AddRate(app, parsed, words);
  AddCatalogue(app, parsed, words);
  AddMaterials(app, parsed, words);
  AddResults(app, parsed, words);
  AddLibrary(app, parsed, words);
  AddImport(app, parsed, words);
  AddReport(app, parsed, services);
  AddFacade(app, parsed, words);
  try {
    std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
    app.parse(reversed);
  } catch (const CLI::Success& asked_for_help) {
    app.exit(asked_for_help, out, errors);
    return static_cast<int>(ExitCode::kDone);
  } catch (const CLI::ParseError& error) {
    errors << words(kWrongUsageRow) << '\n' << error.what() << '\n';
    return static_cast<int>(ExitCode::kWrongUsage);
  }
  return static_cast<int>(ExecuteParsed(app, parsed, services, out, errors));
}

}  // namespace

int RunCommandLine(std::span<const std::string> arguments, const OpenServices& open_services,
                   std::ostream& out, std::ostream& errors) {
  try {
    return ParseAndExecute(arguments, open_services(DataFolderIn(arguments)), out, errors);
  } catch (const Failure& failure) {
    // Without a catalogue only literal words can be shown; a failure that early carries them.
    WriteMessage(
        failure.UserMessage(), [](MessageRow) { return std::string(); }, errors);
    return static_cast<int>(ExitCode::kFailed);
  }
}

}  // namespace velmar::cli
