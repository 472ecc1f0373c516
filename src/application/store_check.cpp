#include "application/store_check.h"

#include <system_error>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "storage/access/conversion.h"
#include "storage/configuration/configuration.h"
#include "storage/configuration/first_start.h"
#include "storage/database/database_failure.h"
#include "storage/database/permissions.h"
#include "storage/database/rename.h"
#include "storage/database/set_aside.h"
#include "storage/files/unfinished.h"

namespace velmar::application {
namespace {

namespace fs = std::filesystem;
using storage::DatabaseCondition;

struct StoreFacts {
  const char* name;       ///< below the data folder
  MessageRow without_it;  ///< what does not work while it cannot be used
};

StoreFacts FactsOf(Store store) {
  switch (store) {
    case Store::kMessages:
      return {storage::kMessageDatabase, kShippedTextsRow};
    case Store::kMaterials:
      return {storage::kMaterialDatabase, kNoMaterialsRow};
    case Store::kResults:
      return {storage::kResultDatabase, kNoResultsRow};
  }
  return {};
}

/// One store on its way.
class Preparation {
 public:
  Preparation(Store store, const StorePlaces& places, const StartTalk& talk)
      : store_(store),
        facts_(FactsOf(store)),
        places_(places),
        talk_(talk),
        file_(places.data_folder / facts_.name) {}

  bool Run() {
    DatabaseCondition condition{};
    talk_.work(AboutFile(kCheckingRow), [&] {
      storage::RemoveAbandoned(file_.parent_path());
      condition = storage::ConditionOf(file_);
    });
    switch (condition) {
      case DatabaseCondition::kGood:
        return true;
      case DatabaseCondition::kMissing:
        return Restored(AboutFile(kWasMissingRow), AboutFile(kMissingUnrestoredRow));
      case DatabaseCondition::kAccess:
        return Converted();
      case DatabaseCondition::kIndex:
        return Reindexed();
      case DatabaseCondition::kDamaged:
        return Replaced();
      case DatabaseCondition::kNoFile: {
        Message problem = AboutFile(kUnreadableRow);
        problem.push_back({kNotAFileRow});
        return Unusable(std::move(problem));
      }
      case DatabaseCondition::kUnreadable:
        return Unusable(AboutFile(kUnreadableRow));
      case DatabaseCondition::kLocked:
        return Unusable(AboutFile(kDatabaseLockedRow));
    }
    return false;
  }

 private:
  Message AboutFile(MessageRow row) const { return {{row, " " + file_.string()}}; }

  /// Tells `problem` and what does not work for it.
  bool Unusable(Message problem) const {
    problem.push_back({facts_.without_it});
    talk_.warn(problem);
    return false;
  }

  /// Puts the shipped database where none stands.
  /// @param said told in front when it succeeded, `not_restored` when not
  bool Restored(Message said, Message not_restored) const {
    try {
      storage::SetAsideCompanions(file_);
      if (places_.shipped && *places_.shipped != places_.data_folder &&
          storage::RestoreShippedFile(places_.data_folder, *places_.shipped, facts_.name)) {
        said.push_back({kShippedInPlaceRow});
        talk_.warn(said);
        return true;
      }
    } catch (const Failure&) {
      // Told below, in the words of this store.
    }
    return Unusable(std::move(not_restored));
  }

  bool Replaced() const {
    try {
      const Message aside{{kSetAsideRow, " " + storage::SetAside(file_).string()}};
      return Restored(aside, aside);
    } catch (const storage::DatabaseFailure&) {
      return Unusable(AboutFile(kDatabaseDamagedRow));
    }
  }

  /// An index can be made again of its table. Whoever declines works on: what the index hides is then
  /// missing, and told as it is met.
  bool Reindexed() const {
    if (!talk_.ask(AboutFile(kRebuildIndexQuestionRow))) return true;
    try {
      fs::path copy;
      talk_.work(AboutFile(kCheckingRow), [&] {
        copy = storage::KeepDatedCopy(file_);
        storage::RebuildIndexes(file_);
      });
      talk_.tell({{kIndexRebuiltRow, " " + copy.string()}});
      return true;
    } catch (const storage::DatabaseFailure& failure) {
      if (failure.Problem() == storage::DatabaseProblem::kDamaged) return Replaced();
      talk_.warn(failure.UserMessage());
      return true;
    }
  }

  bool Converted() const {
    if (!storage::TakesFiles(file_.parent_path())) return Unusable(AboutFile(kLockedAccessRow));
    const bool words = store_ != Store::kMessages || places_.shipped;
    if (!talk_.ask(words ? storage::ConversionQuestion(file_)
                         : storage::ConversionQuestionWithoutCatalogue(file_))) {
      return Unusable(AboutFile(kStillAccessRow));
    }
    std::optional<storage::Conversion> conversion;
    try {
      talk_.work(AboutFile(kConvertingRow), [&] {
        conversion = storage::ConvertAccessFile(places_.reader, file_, [] { return true; });
      });
    } catch (const storage::AccessFailure& failure) {
      return NotConverted(failure.UserMessage());
    }
    // Nothing was done when another program was faster.
    if (conversion && words) talk_.tell(storage::ConversionReport(*conversion));
    return true;
  }

  /// The Access file cannot be read. It may be good for another program: only the user can tell.
  bool NotConverted(Message problem) const {
    std::error_code error;
    const bool could_read = fs::exists(places_.reader.program, error);
    if (could_read && places_.shipped) {
      problem.push_back({kSetAsideQuestionRow});
      if (talk_.ask(problem)) return SetAsideWhole();
      problem = AboutFile(kStillAccessRow);
    }
    return Unusable(std::move(problem));
  }

  bool SetAsideWhole() const {
    try {
      const Message kept{{kKeptAsideRow, " " + storage::RenameWithEnding(file_, ".originale").string()}};
      return Restored(kept, kept);
    } catch (const fs::filesystem_error&) {
      return Unusable(AboutFile(kLockedAccessRow));
    }
  }

  Store store_;
  StoreFacts facts_;
  const StorePlaces& places_;
  const StartTalk& talk_;
  fs::path file_;
};

}  // namespace

bool PrepareStore(Store store, const StorePlaces& places, const StartTalk& talk) {
  return Preparation(store, places, talk).Run();
}

}  // namespace velmar::application
