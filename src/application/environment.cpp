#include "application/environment.h"

#include "foundation/failure.h"
#include "storage/configuration/documents_folder.h"
#include "storage/configuration/first_start.h"
#include "storage/configuration/program_folder.h"
#include "storage/messages/message_table_reader.h"

namespace velmar::application {
namespace {

namespace fs = std::filesystem;

storage::Configuration Configure(const std::optional<fs::path>& data_folder) {
  const storage::Configuration configured = storage::ReadConfiguration(
      storage::ProgramFolder() / storage::kConfigurationFile, storage::CartellaDocumenti());
  return data_folder ? storage::Configuration(configured.LeggiLingua(), data_folder->string()) : configured;
}

void ReadMessages(Environment& environment) {
  fs::path shipped_catalogue;
  if (environment.shipped) {
    shipped_catalogue =
        storage::Configuration(environment.configuration.LeggiLingua(), environment.shipped->string())
            .PercorsoInterfMess();
  }
  environment.messages =
      storage::ReadMessageTable(environment.configuration.PercorsoInterfMess(),
                                environment.configuration.LeggiLingua(), shipped_catalogue);
}

}  // namespace

Environment OpenEnvironment(const std::optional<fs::path>& data_folder) {
  Environment environment{.configuration = Configure(data_folder),
                          .shipped = storage::ShippedDataFolder(storage::ProgramFolder())};
  if (environment.shipped) {
    storage::PrepareDataFolder(environment.configuration.LeggiCartellaDati(), *environment.shipped);
  }
  ReadMessages(environment);
  return environment;
}

Environment OpenEnvironmentForReading(const std::optional<fs::path>& data_folder) {
  Environment environment{.configuration = Configure(data_folder),
                          .shipped = storage::ShippedDataFolder(storage::ProgramFolder())};
  if (environment.shipped) {
    try {
      storage::PrepareDataFolder(environment.configuration.LeggiCartellaDati(), *environment.shipped);
    } catch (const Failure& failure) {
      environment.warnings.push_back(failure.UserMessage());
      environment.configuration =
          storage::Configuration(environment.configuration.LeggiLingua(), environment.shipped->string());
    }
  }
  ReadMessages(environment);
  return environment;
}

}  // namespace velmar::application
