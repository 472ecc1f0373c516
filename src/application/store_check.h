#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "foundation/message.h"
#include "storage/access/access_copy.h"

namespace velmar::application {

/// How a start speaks with the user.
struct StartTalk {
  std::function<bool(const Message& question)> ask{};
  std::function<void(const Message&)> tell{};  ///< what was done
  std::function<void(const Message&)> warn{};  ///< what is wrong
  /// Runs `job` to its end while `what` is said, and hands its exceptions on.
  std::function<void(const Message& what, const std::function<void()>& job)> work{};
};

/// The databases that a start looks after.
enum class Store { kMessages, kMaterials, kResults };

/// Where the databases of a start stand.
struct StorePlaces {
  std::filesystem::path data_folder{};
  std::optional<std::filesystem::path> shipped{};  ///< the default data; nothing: none to restore from
  storage::AccessReader reader{};
};

/// Brings `store` into a state in which it can be used, and says what was done:
/// - a genuine Access file is converted after a question, the original kept under another name; one that
///   cannot be read is left alone or, after a question, set aside;
/// - an index that does not agree with its table is built anew after a question, a dated copy kept;
/// - a damaged database is set aside under another name, unchanged, and the shipped one takes its place;
/// - a missing one is restored from the shipped data;
/// - one that another program holds, that may not be read or is no file at all, is left alone.
/// Nothing is overwritten or deleted. At every moment a whole file stands under the name, or none: a start
/// that was interrupted is taken up by the next one.
/// @return whether the store can be read now; when it cannot, the user has been told what does not work
bool PrepareStore(Store store, const StorePlaces& places, const StartTalk& talk);

}  // namespace velmar::application
