#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

#include "application/store_check.h"
#include "foundation/message.h"
#include "storage/configuration/configuration.h"
#include "storage/messages/message_table.h"

namespace velmar::application {

/// What the program finds around it at the start: read once, handed down.
struct Environment {
  storage::Configuration configuration;
  storage::MessageTable messages{};
  std::optional<std::filesystem::path> shipped{};  ///< the default data that come with the program
  /// What went wrong without keeping the program from working, to be told once.
  std::vector<Message> warnings{};
};

/// Asks `question`, whose words stand in `messages`.
using AskWith = std::function<bool(const Message& question, const storage::MessageTable& messages)>;

/// Reads "Velmar.ini" beside the program and makes the data folder on the first start out of the shipped
/// default data. Where that cannot be done the shipped data serve in its place, with a warning. The messages
/// are those of the shipped catalogue as long as the data folder's own is not opened; without a shipped one
/// there are none.
/// @param data_folder takes the place of the configured one
/// @param ask whether a configured folder that is missing may be made although its path is relative: it would
///        be another one for every place from which the program is started. Without it nothing is asked.
///        Where the answer is no the shipped data serve.
/// @throws Failure with words of its own when there is neither a data folder nor shipped data
Environment FindEnvironment(const std::optional<std::filesystem::path>& data_folder, const AskWith& ask = {});

/// Brings the message catalogue of the data folder into order, and after that the whole folder up to the data
/// of this version (RenewData()), and takes the messages from it; where that cannot be done those of the
/// shipped one stay.
/// @throws Failure with words of its own when no catalogue can be read, or it lacks the language
void OpenCatalogue(Environment& environment, const StartTalk& talk);

/// Which databases can be used after a start.
struct OpenedStores {
  bool materials = false;
  bool results = false;
};

/// Brings the material and the results database into order, and tells which of them can be read only.
OpenedStores OpenStores(const Environment& environment, const StartTalk& talk);

/// The environment of a program that mends nothing: its catalogue is read as it stands. Where that is a
/// genuine Access file the shipped one serves in its place, with a warning. A first start makes the
/// configured data folder; one that `data_folder` names, or whose configured path is relative, must be there.
/// @throws Failure with words of its own when the folder is not there, the catalogue cannot be read, or it
///         lacks the language
Environment OpenEnvironmentForReading(const std::optional<std::filesystem::path>& data_folder);

/// The environment of a program that is to mend the data folder, which may be damaged or missing: nothing is
/// made or read there; the messages are those of the shipped catalogue.
/// @throws Failure with words of its own when no catalogue can be read
Environment OpenEnvironmentForMending(const std::optional<std::filesystem::path>& data_folder);

}  // namespace velmar::application
