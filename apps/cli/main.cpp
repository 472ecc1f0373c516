#include <clocale>
#include <iostream>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "application/accuracy_file.h"
#include "application/environment.h"
#include "application/projects.h"
#include "cli/output/failure_report.h"
#include "cli/output/outcome_table.h"
#include "cli/output/report_format.h"
#include "cli/parsing/command_line.h"
#include "foundation/message_rows.h"
#include "report_formats.h"
#include "storage/configuration/program_folder.h"
#include "storage/materials/material_store.h"

namespace {

/// The user's templates; the shipped ones while the data folder has none.
std::filesystem::path TemplateFolder(const velmar::application::Environment& environment) {
  std::filesystem::path own = environment.configuration.CartellaTemplates();
  std::error_code ignored;
  if (std::filesystem::is_directory(own, ignored) || !environment.shipped) return own;
  return *environment.shipped / "Templates";
}

ReportPlaces PlacesOf(const velmar::application::Environment& environment) {
  ReportPlaces places{.templates = TemplateFolder(environment),
                      .data_folder = environment.configuration.LeggiCartellaDati(),
                      .catalogue = environment.configuration.PercorsoInterfMess()};
  if (environment.shipped) {
    places.shipped_templates = *environment.shipped / "Templates";
    places.shipped_catalogue = *environment.shipped / velmar::storage::kMessageDatabase;
  }
  return places;
}

velmar::cli::Services OpenServices(const velmar::cli::Opening& opening) {
  velmar::application::Environment environment =
      opening.mends ? velmar::application::OpenEnvironmentForMending(opening.data_folder)
                    : velmar::application::OpenEnvironmentForReading(opening.data_folder);
  velmar::cli::Services services;
  services.words = [messages = std::move(environment.messages)](velmar::MessageRow row) {
    return messages.Text(row);
  };
  const ReportPlaces places = PlacesOf(environment);
  services.report_formats = {velmar::cli::CsvFormat()};
  for (velmar::cli::ReportFormat& format : FurtherReportFormats(places)) {
    services.report_formats.push_back(std::move(format));
  }
  services.readable_picture = IsReadablePicture;
  services.material_database = environment.configuration.PercorsoDatabase();
  services.result_database = environment.configuration.PercorsoDatabaseTeorico();
  services.library_folder = environment.configuration.CartellaLibreria();
  services.data_folder = environment.configuration.LeggiCartellaDati();
  services.shipped_data = environment.shipped;
  if (environment.shipped) {
    services.validation_folder = *environment.shipped / velmar::application::kValidationFolder;
    services.accuracy = [file = services.validation_folder / velmar::application::kPredictionsFile,
                         words = services.words] {
      try {
        return velmar::application::ReadAccuracy(file);
      } catch (const std::runtime_error& failure) {
        // A run is worth its result also where nothing can be said of its error.
        std::cerr << words(velmar::kNoMeasurementsRow) << ' ' << failure.what() << '\n';
        return velmar::validation::Accuracy();
      }
    };
  }
  services.access_reader = velmar::storage::AccessReaderProgram(velmar::storage::ProgramFolder())
                               .value_or(std::filesystem::path());
  const auto tell = [words = services.words](const velmar::Failure& failure) {
    velmar::cli::TellFailure(failure, words, std::cerr);
  };
  services.materials = velmar::application::ForgivingLookup(
      velmar::storage::MaterialLookupIn(environment.configuration.PercorsoDatabase()), tell);
  services.check_template = TemplateCheck();
  services.together = FurtherTogetherReports(places, services);
  for (const velmar::Message& warning : environment.warnings)
    velmar::cli::WriteMessage(warning, services.words, std::cerr);
  velmar::cli::WriteMessage(velmar::cli::ConversionAdvice(environment.configuration.PercorsoInterfMess()),
                            services.words, std::cerr);
  return services;
}

}  // namespace

int main(int argc, char** argv) {
  // Libraries below read and write numbers by the locale; files and JSON need the point.
  std::setlocale(LC_NUMERIC, "C");
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  return velmar::cli::RunCommandLine(arguments, OpenServices, std::cout, std::cerr);
}
