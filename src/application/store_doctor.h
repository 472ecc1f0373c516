#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "application/store_check.h"

namespace velmar::application {

/// What can be wrong in a data folder.
enum class StoreProblem {
  kMissing,     ///< a store is not there
  kDamaged,     ///< it cannot be read
  kIndex,       ///< an index does not agree with its table
  kAccess,      ///< it is a genuine Access file, to be converted
  kNoFile,      ///< a folder or a device stands under its name
  kUnreadable,  ///< it may not be read, or not be changed
  kLocked,      ///< another program holds it
  kNoTable,     ///< a table is missing; the detail names it
  kText,        ///< a text is no text; the detail says where
  kName,        ///< a name nobody can ask for; the detail says where
  kValue,       ///< an impossible number; the detail says where, and the number
  kAbandoned,   ///< what a killed program left unfinished
};

/// One thing that is wrong.
struct StoreFinding {
  StoreProblem problem{};
  std::filesystem::path file{};
  std::string detail{};  ///< "Modulo_A1, Mattone, Rapporto di Poisson: 0.7"; empty where the file says all
  bool repaired = false;
  std::filesystem::path copy{};  ///< where what was before stands now; empty when nothing was changed
};

/// Looks the data folder through: the message catalogue, the material and the results database (integrity,
/// indexes, tables, texts, names, impossible numbers), the files of the library (integrity, indexes), and
/// what killed programs left unfinished. Only what an interrupted change left half done is undone by that.
std::vector<StoreFinding> ExamineStores(const StorePlaces& places);

/// The same, and repairs what can be repaired; a dated copy of a database is kept before it is changed.
/// - A missing store, or a missing data folder, is restored from the shipped data.
/// - A damaged one is set aside, unchanged, and the shipped one takes its place, where there is one.
/// - An index is built anew; a missing table is made, empty.
/// - Of a broken text of the catalogue the shipped one takes the place; other texts and names are written
///   without what they must not hold; an impossible number becomes null.
/// - What is unfinished is removed, unless a living program holds it.
/// A genuine Access file, a file that is held or may not be read, and what stands there without being a file
/// are left alone.
std::vector<StoreFinding> RepairStores(const StorePlaces& places);

}  // namespace velmar::application
