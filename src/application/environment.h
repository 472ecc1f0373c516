#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "elements/material_record.h"
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

/// Reads "Velmar.ini" beside the program, makes the data folder on the first start out of the shipped default
/// data, and reads the message catalogue.
/// @param data_folder takes the place of the configured one
/// @throws Failure with words of its own when the catalogue cannot be read, or there is neither a data folder
/// nor
///         shipped data
Environment OpenEnvironment(const std::optional<std::filesystem::path>& data_folder);

/// The same for a program that only reads: where the data folder cannot be made, the shipped data serve in
/// its place, with a warning.
Environment OpenEnvironmentForReading(const std::optional<std::filesystem::path>& data_folder);

}  // namespace velmar::application
