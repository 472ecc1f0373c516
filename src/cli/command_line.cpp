#include "cli/command_line.h"

#include <map>
#include <ostream>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/catalogue_command.h"
#include "cli/materials_command.h"
#include "cli/outcome_table.h"
#include "cli/rate_command.h"
#include "cli/run_command.h"
#include "cli/save_command.h"
#include "foundation/failure.h"

namespace velmar::cli {
namespace {

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
};

void AddRun(CLI::App& app, Parsed& parsed) {
  CLI::App* command = app.add_subcommand("run", "Opens a project, runs it and prints the result");
  command->add_option("PROJECT", parsed.run.project, "project file (.drav)")->required();
  command->add_flag("--json", parsed.run.json, "one JSON object on standard output");
  command->add_option("--answer", parsed.answer, "the answer to every question")
      ->check(CLI::IsMember({"yes", "no"}))
      ->capture_default_str();
}

void AddSave(CLI::App& app, Parsed& parsed) {
  CLI::App* command = app.add_subcommand("save", "Opens a project and saves it under another name");
  command->add_option("IN", parsed.save.from, "project file to open")->required();
  command->add_option("OUT", parsed.save.to, "project file to write")->required();
}

void AddRate(CLI::App& app, Parsed& parsed) {
  CLI::App* command = app.add_subcommand("rate", "Rates a spectrum after ISO 717");
  auto* kind = command->add_option_group("kind");
  kind->add_flag("--airborne", parsed.airborne, "R: Rw, C, Ctr");
  kind->add_flag("--impact", parsed.rate.impact, "Ln: Ln,w, Ci");
  kind->require_option(1);
  command->add_flag("--json", parsed.rate.json, "one JSON object on standard output");
  command
      ->add_option("VALUES", parsed.rate.values,
                   "16 values (100 to 3150 Hz) or 21 (50 to 5000 Hz), behind --")
      ->required();
}

void AddCatalogue(CLI::App& app, Parsed& parsed) {
  CLI::App* command = app.add_subcommand("catalogue", "Lists the calculations");
  command->add_flag("--json", parsed.catalogue.json, "one JSON array on standard output");
}

/// One of the commands that work on the material database.
CLI::App* AddMaterialsAction(CLI::App& group, Parsed& parsed, const char* name, const char* help,
                             MaterialsAction action) {
  using enum elements::MaterialFamily;
  static const std::map<std::string, elements::MaterialFamily> kFamilies = {
      {"structural", kStructural}, {"fibrous", kFibrous}, {"resilient", kResilient}};
  CLI::App* command = group.add_subcommand(name, help);
  command->add_option("--family", parsed.materials.family, "the table: structural, fibrous or resilient")
      ->transform(CLI::CheckedTransformer(kFamilies));
  command->add_flag("--json", parsed.materials.json, "JSON on standard output");
  command->callback([&parsed, action] { parsed.materials.action = action; });
  return command;
}

void AddMaterials(CLI::App& app, Parsed& parsed) {
  CLI::App* group = app.add_subcommand("materials", "Lists and changes the material database");
  group->require_subcommand(1);
  const auto add = [&](const char* name, const char* help, MaterialsAction action) {
    return AddMaterialsAction(*group, parsed, name, help, action);
  };
  add("list", "Lists the materials", MaterialsAction::kList)
      ->add_option("--keyword", parsed.materials.keyword, "only what this keyword filter shows");
  constexpr const char* kSettings = "\"COLUMN=VALUE\", columns as the table spells them";
  const auto add_name = [&](CLI::App* command) {
    command->add_option("NAME", parsed.materials.name, "name of the material")->required();
    return command;
  };
  add_name(add("show", "Shows one material", MaterialsAction::kShow));
  add("add", "Adds a material", MaterialsAction::kAdd)
      ->add_option("SETTINGS", parsed.materials.settings, kSettings)
      ->required();
  add_name(add("edit", "Changes a material", MaterialsAction::kEdit))
      ->add_option("SETTINGS", parsed.materials.settings, kSettings)
      ->required();
  add_name(add("delete", "Deletes a material", MaterialsAction::kDelete));
  add("import", "Adds the rows of a CSV file, all or none", MaterialsAction::kImport)
      ->add_option("FILE", parsed.materials.file, "CSV in UTF-8 with a heading")
      ->required();
  add("export", "Writes a table as CSV in UTF-8", MaterialsAction::kExport)
      ->add_option("FILE", parsed.materials.file, "target; standard output without it");
}

ExitCode ExecuteParsed(const CLI::App& app, Parsed& parsed, const Services& services, std::ostream& out,
                       std::ostream& errors) {
  parsed.run.go_on_outside_ranges = parsed.answer == "yes";
  if (app.got_subcommand("run")) return Execute(parsed.run, services, out, errors);
  if (app.got_subcommand("save")) return Execute(parsed.save, services, errors);
  if (app.got_subcommand("rate")) return Execute(parsed.rate, services.words, out, errors);
  if (app.got_subcommand("materials")) return Execute(parsed.materials, services, out, errors);
  return Execute(parsed.catalogue, services.words, out);
}

}  // namespace

int RunCommandLine(std::span<const std::string> arguments, const OpenServices& open_services,
                   std::ostream& out, std::ostream& errors) {
  Parsed parsed;
  CLI::App app("VELMARpro: predicts the sound insulation of building elements", "velmar");
  app.require_subcommand(1);
  app.fallthrough();
  app.add_option("--data", parsed.data_folder, "data folder (default: as configured)");
  AddRun(app, parsed);
  AddSave(app, parsed);
  AddRate(app, parsed);
  AddCatalogue(app, parsed);
  AddMaterials(app, parsed);
  try {
    std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
    app.parse(reversed);
  } catch (const CLI::ParseError& error) {
    const bool asked_for_help = app.exit(error, out, errors) == 0;
    return static_cast<int>(asked_for_help ? ExitCode::kDone : ExitCode::kWrongUsage);
  }
  try {
    const Services services = open_services(parsed.data_folder);
    return static_cast<int>(ExecuteParsed(app, parsed, services, out, errors));
  } catch (const Failure& failure) {
    // Without a catalogue only literal words can be shown; a failure that early carries them.
    WriteMessage(
        failure.UserMessage(), [](MessageRow) { return std::string(); }, errors);
    return static_cast<int>(ExitCode::kFailed);
  }
}

}  // namespace velmar::cli
