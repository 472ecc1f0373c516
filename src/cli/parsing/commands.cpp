#include "cli/parsing/commands.h"

#include <map>

#include <CLI/CLI.hpp>

#include "foundation/message_rows.h"

namespace velmar::cli {
namespace {

void AddAnswer(CLI::App& command, Parsed& parsed, const presentation::Words& words) {
  command.add_option("--answer", parsed.answer, words(kAnswerHelpRow))
      ->check(CLI::IsMember({"yes", "no"}).description(""))
      ->type_name("yes|no")
      ->capture_default_str();
}

void AddRun(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand("run", words(kRunHelpRow));
  command->add_option("PROJECT", parsed.run.project, words(kProjectArgumentHelpRow))->required();
  command->add_flag("--json", parsed.run.json, words(kJsonHelpRow));
  AddAnswer(*command, parsed, words);
}

void AddReport(CLI::App& app, Parsed& parsed, const Services& services) {
  CLI::App* command = app.add_subcommand("report", services.words(kReportHelpRow));
  command->add_option("FILE", parsed.report.projects, services.words(kReportFilesHelpRow));
  for (const ReportFormat& format : services.report_formats) {
    const auto take = [&parsed, extension = format.extension](const std::string& target) {
      parsed.report.targets[extension] = target;
    };
    command->add_option_function<std::string>("--" + format.extension, take, services.words(format.help));
  }
  if (services.check_template)
    command->add_option("--check-template", parsed.report.checked_template,
                        services.words(kCheckTemplateHelpRow));
  if (!services.together.extensions.empty()) {
    command->add_flag("--together", parsed.report.together, services.words(kTogetherHelpRow));
    command->add_option("--title", parsed.report.title, services.words(kScheduleTitleHelpRow));
  }
  const auto take_language = [&parsed](const std::string& code) {
    parsed.report.language = elements::LanguageOfCode(code);
  };
  command
      ->add_option_function<std::string>("--language", take_language, services.words(kReportLanguageHelpRow))
      ->check(CLI::IsMember({"it", "en", "it+en"}).description(""))
      ->type_name("it|en|it+en");
  AddAnswer(*command, parsed, services.words);
}

void AddProfile(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* group = app.add_subcommand("profile", words(kProfileHelpRow));
  group->require_subcommand(1);
  const auto add = [&](const char* name, MessageRow help, ProfileAction action) {
    CLI::App* command = group->add_subcommand(name, words(help));
    command->add_flag("--json", parsed.profile.json, words(kJsonHelpRow));
    command->callback([&parsed, action] { parsed.profile.action = action; });
    return command;
  };
  add("show", kProfileShowHelpRow, ProfileAction::kShow);
  CLI::App* set = add("set", kProfileSetHelpRow, ProfileAction::kSet);
  set->add_option("KEY", parsed.profile.key, words(kProfileKeyHelpRow))->required();
  set->add_option("VALUE", parsed.profile.value, words(kProfileValueHelpRow))->required();
  add("clear", kProfileClearHelpRow, ProfileAction::kClear);
}

void AddSave(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand("save", words(kSaveHelpRow));
  command->add_option("IN", parsed.save.from, words(kInArgumentHelpRow))->required();
  command->add_option("OUT", parsed.save.to, words(kOutArgumentHelpRow))->required();
}

void AddRate(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand("rate", words(kRateHelpRow));
  command->add_flag("--airborne", parsed.airborne, words(kAirborneHelpRow));
  command->add_flag("--impact", parsed.rate.impact, words(kImpactHelpRow));
  command->add_flag("--json", parsed.rate.json, words(kJsonHelpRow));
  command->add_option("VALUES", parsed.rate.values, words(kValuesArgumentHelpRow))->required();
}

void AddCatalogue(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand("catalogue", words(kCatalogueHelpRow));
  command->add_flag("--json", parsed.catalogue.json, words(kJsonHelpRow));
}

void AddReferences(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand("references", words(kReferencesHelpRow));
  command->add_flag("--json", parsed.references.json, words(kJsonHelpRow));
}

/// One of the commands that work on the material database.
CLI::App* AddMaterialsAction(CLI::App& group, Parsed& parsed, const presentation::Words& words,
                             const char* name, MessageRow help, MaterialsAction action) {
  using enum elements::MaterialFamily;
  static const std::map<std::string, elements::MaterialFamily> kFamilies = {
      {"structural", kStructural}, {"fibrous", kFibrous}, {"resilient", kResilient}};
  CLI::App* command = group.add_subcommand(name, words(help));
  command->add_option("--family", parsed.materials.family, words(kFamilyHelpRow))
      ->transform(CLI::CheckedTransformer(kFamilies).description(""))
      ->type_name("structural|fibrous|resilient");
  command->add_flag("--json", parsed.materials.json, words(kJsonHelpRow));
  command->callback([&parsed, action] { parsed.materials.action = action; });
  return command;
}

void AddMaterials(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* group = app.add_subcommand("materials", words(kMaterialsHelpRow));
  group->require_subcommand(1);
  const auto add = [&](const char* name, MessageRow help, MaterialsAction action) {
    return AddMaterialsAction(*group, parsed, words, name, help, action);
  };
  add("list", kMaterialsListHelpRow, MaterialsAction::kList)
      ->add_option("--keyword", parsed.materials.keyword, words(kKeywordHelpRow));
  const std::string settings = words(kSettingsHelpRow);
  const auto add_name = [&](CLI::App* command) {
    command->add_option("NAME", parsed.materials.name, words(kMaterialNameHelpRow))->required();
    return command;
  };
  const auto add_force = [&](CLI::App* command) {
    command->add_flag("--force", parsed.materials.force, words(kForceHelpRow));
    return command;
  };
  add_name(add("show", kMaterialsShowHelpRow, MaterialsAction::kShow));
  add_force(add("add", kMaterialsAddHelpRow, MaterialsAction::kAdd))
      ->add_option("SETTINGS", parsed.materials.settings, settings)
      ->required();
  add_force(add_name(add("edit", kMaterialsEditHelpRow, MaterialsAction::kEdit)))
      ->add_option("SETTINGS", parsed.materials.settings, settings)
      ->required();
  add_name(add("delete", kMaterialsDeleteHelpRow, MaterialsAction::kDelete));
  add_force(add("import", kMaterialsImportHelpRow, MaterialsAction::kImport))
      ->add_option("FILE", parsed.materials.file, words(kImportFileHelpRow))
      ->required();
  add("export", kMaterialsExportHelpRow, MaterialsAction::kExport)
      ->add_option("FILE", parsed.materials.file, words(kExportFileHelpRow));
}

void AddResults(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  using enum storage::ResultTable;
  static const std::map<std::string, storage::ResultTable> kTables = {
      {"airborne", kAirborne}, {"impact", kImpact}, {"lining", kLining}};
  CLI::App* group = app.add_subcommand("results", words(kResultsHelpRow));
  group->require_subcommand(1);
  const auto add = [&](const char* name, MessageRow help, ResultsAction action) {
    CLI::App* command = group->add_subcommand(name, words(help));
    CLI::Option* table = command->add_option("--table", parsed.results.table, words(kTableHelpRow))
                             ->transform(CLI::CheckedTransformer(kTables).description(""))
                             ->type_name("airborne|impact|lining");
    // What is deleted is to be named without doubt.
    if (action == ResultsAction::kDelete) table->required();
    command->add_flag("--json", parsed.results.json, words(kJsonHelpRow));
    if (action != ResultsAction::kList)
      command->add_option("NAME", parsed.results.name, words(kResultNameHelpRow))->required();
    command->callback([&parsed, action] { parsed.results.action = action; });
  };
  add("list", kResultsListHelpRow, ResultsAction::kList);
  add("show", kResultsShowHelpRow, ResultsAction::kShow);
  add("delete", kResultsDeleteHelpRow, ResultsAction::kDelete);
  CLI::App* save = group->add_subcommand("save", words(kResultsSaveHelpRow));
  save->add_option("PROJECT", parsed.save_result.project, words(kProjectArgumentHelpRow))->required();
  save->add_option("NAME", parsed.save_result.name, words(kResultNameHelpRow))->required();
  AddAnswer(*save, parsed, words);
  save->add_flag("--json", parsed.save_result.json, words(kJsonHelpRow));
}

void AddFacade(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand("facade", words(kFacadeHelpRow));
  command->add_option("IN", parsed.facade.from, words(kInArgumentHelpRow))->required();
  command->add_option("OUT", parsed.facade.to, words(kOutArgumentHelpRow))->required();
  command->add_option("--opaque", parsed.facade.opaque, words(kOpaqueHelpRow));
  command->add_option("--component", parsed.facade.components, words(kComponentHelpRow))
      ->expected(1)
      ->take_all();
}

/// The commands of `library` that change the user's own measurements.
void AddOwnMeasurements(CLI::App& group, Parsed& parsed, const presentation::Words& words) {
  OwnMeasurementsCommand& own = parsed.own_measurements;
  const auto add = [&](const char* name, MessageRow help, OwnMeasurementsAction action) {
    CLI::App* command = group.add_subcommand(name, words(help));
    command->add_option("KIND", own.kind, words(kLibraryKindHelpRow))->required();
    command->callback([&parsed, action] {
      parsed.changes_own_measurements = true;
      parsed.own_measurements.action = action;
    });
    return command;
  };
  const auto add_name = [&](CLI::App* command) {
    command->add_option("NAME", own.name, words(kLibraryTestHelpRow))->required();
    return command;
  };
  const auto add_settings = [&](CLI::App* command) {
    command->add_option("SETTINGS", own.settings, words(kLibrarySettingsHelpRow));
    command->add_option("--bands", own.bands, words(kLibraryBandsHelpRow));
  };
  add_settings(add("add", kLibraryAddHelpRow, OwnMeasurementsAction::kAdd));
  add_settings(add_name(add("edit", kLibraryEditHelpRow, OwnMeasurementsAction::kEdit)));
  add_name(add("delete", kLibraryDeleteHelpRow, OwnMeasurementsAction::kDelete));
  CLI::App* import = add("import", kLibraryImportHelpRow, OwnMeasurementsAction::kImport);
  import->add_option("FILE", own.file, words(kLibraryFileHelpRow))->required();
  import->add_option("--name", own.name, words(kLibraryNameHelpRow));
  add("export", kLibraryExportHelpRow, OwnMeasurementsAction::kExport)
      ->add_option("FILE", own.file, words(kExportFileHelpRow));
}

void AddLibrary(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* group = app.add_subcommand("library", words(kLibraryHelpRow));
  group->require_subcommand(1);
  const auto add = [&](const char* name, MessageRow help, LibraryAction action) {
    CLI::App* command = group->add_subcommand(name, words(help));
    const bool show = action == LibraryAction::kShow;
    command->add_option("KIND", parsed.library.kind, words(kLibraryKindHelpRow))->required(show);
    command->add_option("SERIES", parsed.library.series, words(kLibrarySeriesHelpRow))->required(show);
    if (show) command->add_option("TEST", parsed.library.test, words(kLibraryTestHelpRow))->required();
    command->add_flag("--json", parsed.library.json, words(kJsonHelpRow));
    command->callback([&parsed, action] { parsed.library.action = action; });
  };
  add("list", kLibraryListHelpRow, LibraryAction::kList);
  add("show", kLibraryShowHelpRow, LibraryAction::kShow);
  AddOwnMeasurements(*group, parsed, words);
}

void AddImport(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand("import", words(kImportHelpRow));
  command->add_option("FILE", parsed.import.file, words(kAccessFileHelpRow))->required();
  command->add_flag("--yes", parsed.import.yes, words(kYesHelpRow));
  command->add_flag("--json", parsed.import.json, words(kJsonHelpRow));
}

void AddDoctor(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand(kDoctorCommand, words(kDoctorHelpRow));
  command->add_flag("--repair", parsed.doctor.repair, words(kRepairHelpRow));
  command->add_flag("--json", parsed.doctor.json, words(kJsonHelpRow));
}

void AddModels(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand("models", words(kModelsHelpRow));
  command->add_option("PROJECT", parsed.models.project, words(kProjectArgumentHelpRow))->required();
  command->add_flag("--json", parsed.models.json, words(kJsonHelpRow));
  AddAnswer(*command, parsed, words);
}

void AddValidate(CLI::App& app, Parsed& parsed, const presentation::Words& words) {
  CLI::App* command = app.add_subcommand("validate", words(kValidateHelpRow));
  command->add_flag("--json", parsed.validate.json, words(kJsonHelpRow));
}

}  // namespace

void AddCommands(CLI::App& app, Parsed& parsed, const Services& services) {
  const presentation::Words& words = services.words;
  app.require_subcommand(1);
  app.fallthrough();
  app.add_option("--data", parsed.data_folder, words(kDataHelpRow));
  app.footer(words(kExitCodesHelpRow) + '\n' + words(kDatabasesHelpRow));
  AddRun(app, parsed, words);
  AddSave(app, parsed, words);
  AddRate(app, parsed, words);
  AddCatalogue(app, parsed, words);
  AddMaterials(app, parsed, words);
  AddResults(app, parsed, words);
  AddLibrary(app, parsed, words);
  AddImport(app, parsed, words);
  AddReferences(app, parsed, words);
  AddReport(app, parsed, services);
  AddFacade(app, parsed, words);
  AddDoctor(app, parsed, words);
  AddProfile(app, parsed, words);
  AddModels(app, parsed, words);
  AddValidate(app, parsed, words);
}

}  // namespace velmar::cli
