#include "cli/parsing/commands.h"

#include <map>

#include <CLI/CLI.hpp>

namespace velmar::cli {
namespace {

void AddAnswer(CLI::App& command, Parsed& parsed, const presentation::Words& words) {
  command.add_option("--answer", parsed.answer, words({1210}))
      ->check(CLI::IsMember({"yes", "no"}).description(""))
      ->type_name("yes|no")
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
  command->add_flag("--airborne", parsed.airborne, words({1214}));
  command->add_flag("--impact", parsed.rate.impact, words({1215}));
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
      ->transform(CLI::CheckedTransformer(kFamilies).description(""))
      ->type_name("structural|fibrous|resilient");
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
                             ->transform(CLI::CheckedTransformer(kTables).description(""))
                             ->type_name("airborne|impact|lining");
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

void AddModels(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand("models", words({1971}));
  command->add_option("PROJECT", parsed.models.project, words({1244}))->required();
  command->add_flag("--json", parsed.models.json, words({1209}));
  AddAnswer(*command, parsed, words);
}

void AddValidate(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand("validate", words({1970}));
  command->add_flag("--json", parsed.validate.json, words({1209}));
}

}  // namespace

void AddCommands(CLI::App& app, Parsed& parsed, const Services& services) {
  const presentation::Words& words = services.words;
  app.require_subcommand(1);
  app.fallthrough();
  app.add_option("--data", parsed.data_folder, words({1211}));
  app.footer(words({1217}) + '\n' + words({1218}));
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
  AddModels(app, parsed, words);
  AddValidate(app, parsed, words);
}

}  // namespace velmar::cli
