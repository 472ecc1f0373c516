#include "application/environment.h"

#include <system_error>
#include <utility>

#include "application/data_renewal.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "storage/configuration/documents_folder.h"
#include "storage/configuration/first_start.h"
#include "storage/configuration/program_folder.h"
#include "storage/database/database_failure.h"
#include "storage/database/file_kind.h"
#include "storage/database/permissions.h"
#include "storage/database/set_aside.h"
#include "storage/messages/message_table_reader.h"

namespace velmar::application {
namespace {

namespace fs = std::filesystem;

Environment Configured(const std::optional<fs::path>& data_folder) {
  const storage::Configuration configured = storage::ReadConfiguration(
      storage::ProgramFolder() / storage::kConfigurationFile, storage::CartellaDocumenti());
  return {.configuration = data_folder
                               ? storage::Configuration(configured.LeggiLingua(), data_folder->string())
                               : configured,
          .shipped = storage::ShippedDataFolder(storage::ProgramFolder())};
}

/// The shipped data take the place of the data folder, for the reason that `told` gives.
void UseShippedData(Environment& environment, Message told) {
  environment.warnings.push_back(std::move(told));
  environment.configuration =
      storage::Configuration(environment.configuration.LeggiLingua(), environment.shipped->string());
}

void PrepareFolder(Environment& environment) {
  if (!environment.shipped) return;
  try {
    storage::PrepareDataFolder(environment.configuration.LeggiCartellaDati(), *environment.shipped);
  } catch (const Failure& failure) {
    UseShippedData(environment, failure.UserMessage());
  }
}

bool IsMissing(const fs::path& folder) {
  std::error_code error;
  return !fs::exists(fs::symlink_status(folder, error));
}

/// The folder that a command names is where the user said, or it is a mistake: nothing is made there.
void RequireFolder(const storage::Configuration& configuration, bool named) {
  const fs::path folder = configuration.LeggiCartellaDati();
  if (!IsMissing(folder) || (!named && folder.is_absolute())) return;
  const std::string path = folder.string();
  throw Failure({{"La cartella dei dati non esiste: " + path},
                 {"Controllare " +
                  std::string(named ? "il percorso dell'opzione --data."
                                    : "la voce CartellaDati del file Velmar.ini: il percorso è "
                                      "relativo alla cartella in cui si lavora.") +
                  " Per crearla con i dati forniti: velmar doctor --repair --data CARTELLA"},
                 {"The data folder does not exist: " + path},
                 {"Check " +
                  std::string(named ? "the path of the option --data."
                                    : "the entry CartellaDati of the file Velmar.ini: its path is "
                                      "relative to the working folder.") +
                  " To create it with the shipped data: velmar doctor --repair --data FOLDER"}},
                "no data folder " + path);
}

fs::path ShippedCatalogue(const Environment& environment) {
  return environment.shipped ? *environment.shipped / storage::kMessageDatabase : fs::path();
}

storage::MessageTable OwnMessages(const Environment& environment) {
  return storage::ReadMessageTable(environment.configuration.PercorsoInterfMess(),
                                   environment.configuration.LeggiLingua(), ShippedCatalogue(environment));
}

/// In the configured language or, when that is one of the user's own, in Italian.
storage::MessageTable ShippedMessages(const Environment& environment) {
  const fs::path catalogue = ShippedCatalogue(environment);
  try {
    return storage::ReadMessageTable(catalogue, environment.configuration.LeggiLingua());
  } catch (const storage::CatalogueFailure&) {
    return storage::ReadMessageTable(catalogue, storage::kDefaultLanguage);
  }
}

StorePlaces PlacesOf(const Environment& environment) {
  return {.data_folder = environment.configuration.LeggiCartellaDati(),
          .shipped = environment.shipped,
          .reader = {storage::AccessReaderProgram(storage::ProgramFolder()).value_or("")}};
}

/// Brings the folder of an earlier version up to this one. A material database that cannot be used yet is for
/// the next start.
void RenewFolder(const Environment& environment, const StartTalk& talk) {
  using storage::DatabaseCondition;
  const DatabaseCondition materials = storage::ConditionOf(environment.configuration.PercorsoDatabase());
  const bool usable = materials == DatabaseCondition::kGood || materials == DatabaseCondition::kMissing;
  if (!environment.shipped || !usable) return;
  try {
    const auto done = RenewData(environment.configuration.LeggiCartellaDati(), *environment.shipped);
    if (done) talk.tell(*done);
  } catch (const Failure& failure) {
    Message told{{kRenewalFailedRow}};
    const Message& why = failure.UserMessage();
    told.insert(told.end(), why.begin(), why.end());
    talk.warn(told);
  }
}

}  // namespace

Environment FindEnvironment(const std::optional<fs::path>& data_folder, const AskWith& ask) {
  Environment environment = Configured(data_folder);
  try {
    environment.messages = ShippedMessages(environment);
  } catch (const storage::CatalogueFailure&) {
    environment.shipped.reset();  // an installation that is not whole
  }
  const fs::path folder = environment.configuration.LeggiCartellaDati();
  const bool doubtful = !data_folder && folder.is_relative() && IsMissing(folder);
  if (doubtful && ask && environment.shipped) {
    std::error_code ignored;
    const std::string place = fs::absolute(folder, ignored).string();
    if (!ask({{kRelativeFolderQuestionRow}, {place}}, environment.messages)) {
      UseShippedData(environment, {{kShippedDataServeRow}});
      return environment;
    }
  }
  PrepareFolder(environment);
  return environment;
}

void OpenCatalogue(Environment& environment, const StartTalk& talk) {
  const bool good = PrepareStore(Store::kMessages, PlacesOf(environment), talk);
  if (good) RenewFolder(environment, talk);
  if (good || !environment.shipped) environment.messages = OwnMessages(environment);
}

OpenedStores OpenStores(const Environment& environment, const StartTalk& talk) {
  const StorePlaces places = PlacesOf(environment);
  const OpenedStores opened{PrepareStore(Store::kMaterials, places, talk),
                            PrepareStore(Store::kResults, places, talk)};
  Message read_only{{kReadOnlyDatabasesRow}};
  const auto look = [&](bool usable, const fs::path& file) {
    if (usable && !storage::MayBeChanged(file)) read_only.push_back({file.string()});
  };
  look(opened.materials, environment.configuration.PercorsoDatabase());
  look(opened.results, environment.configuration.PercorsoDatabaseTeorico());
  if (read_only.size() > 1) talk.tell(read_only);
  return opened;
}

Environment OpenEnvironmentForReading(const std::optional<fs::path>& data_folder) {
  Environment environment = Configured(data_folder);
  RequireFolder(environment.configuration, data_folder.has_value());
  PrepareFolder(environment);
  const fs::path catalogue = environment.configuration.PercorsoInterfMess();
  if (environment.shipped && storage::KindOf(catalogue) == storage::FileKind::kAccess) {
    const storage::DatabaseFailure failure(storage::DatabaseProblem::kAccessFormat, catalogue, "");
    environment.warnings.push_back(failure.UserMessage());
    environment.warnings.back().push_back({kShippedTextsRow});
    environment.messages = ShippedMessages(environment);
  } else {
    environment.messages = OwnMessages(environment);
  }
  return environment;
}

Environment OpenEnvironmentForMending(const std::optional<fs::path>& data_folder) {
  Environment environment = Configured(data_folder);
  environment.messages = environment.shipped ? ShippedMessages(environment) : OwnMessages(environment);
  return environment;
}

}  // namespace velmar::application
