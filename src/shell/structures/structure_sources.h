#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "calculation/edits/facade_parts.h"
#include "shell/structures/branches.h"
#include "storage/library/measured_test.h"
#include "storage/library/rating_check.h"
#include "storage/results/result_copy.h"

namespace velmar::structures {

/// The tables of stored results that a window offers (`Option1`).
enum class ResultKind { kAirborne = 0, kImpact = 1, kLining = 2 };

/// A line of the grid of stored results.
struct ResultEntry {
  std::string name{};
  std::optional<double> rating_db{};  ///< Rw, or Ln,w
  std::string description{};
};

using storage::CopiedTable;

/// The stored results. Each function may throw Failure; nothing has changed then.
struct ResultSource {
  std::function<std::vector<ResultEntry>(ResultKind)> list;
  std::function<std::optional<calculation::FacadePart>(ResultKind, const std::string& name)> find;
  /// The fields of a stored result as they go to the clipboard; empty when there is none of that name.
  std::function<CopiedTable(ResultKind, const std::string& name)> copy;
  /// What the run of a stored result told, a line each; empty when it told nothing.
  std::function<std::string(ResultKind, const std::string& name)> messages;
  /// @return false when there was none of exactly that name
  std::function<bool(ResultKind, const std::string& name)> remove;
};

/// A file of a branch: a series of tests.
struct LibraryFile {
  Branch branch{};
  std::string name{};  ///< without its ending
  std::filesystem::path path{};

  bool operator==(const LibraryFile&) const = default;
};

/// What lists and filters show of a test.
struct TestEntry {
  std::string name{};
  std::string description{};
  std::string keyword{};
  storage::TestUses uses{};
};

/// A measured structure. Empty texts stand for what the record lacks.
struct MeasuredTest {
  calculation::FacadePart part{};
  std::string certificate{};
  std::string date{};
  std::string laboratory{};
  std::string client{};
  std::string notes{};
  std::string site{};
  std::optional<double> source_volume_m3{};
  std::optional<double> receiving_volume_m3{};
  std::string picture_name{};       ///< as the record spells it, "senza" for none
  std::filesystem::path picture{};  ///< the file to show

  calculation::BandValues octave_steps_db{};  ///< octave values over the thirds; nothing where none is known
  /// Thirds that follow from the octaves where the test has no thirds.
  std::optional<calculation::BandValues> derived_thirds_db{};
  std::string index_kind{};  ///< the index that the source states, "STC"
  std::optional<double> index_value{};
  std::optional<double> uncertainty_db{};
  std::string source{};
  storage::RatingCheck check{};
};

/// The user's own measurements, and how they are changed. Each function may throw Failure; nothing has
/// changed then. Without `add` there are none.
struct OwnMeasurementSource {
  std::function<bool(const LibraryFile&)> holds{};  ///< whether a file is a series of own measurements
  std::function<std::vector<storage::MeasuredTest>(Branch)> all{};
  /// The following return the refusal, or nothing when they are done.
  std::function<std::optional<Message>(Branch, const std::vector<storage::MeasuredTest>&)> add{};
  std::function<std::optional<Message>(Branch, const std::string& name, const storage::MeasuredTest&)>
      change{};
  /// What was deleted; nothing when none was called exactly so.
  std::function<std::optional<storage::MeasuredTest>(Branch, const std::string& name)> remove{};
  /// Keeps the picture in a file beside the library's own and gives the name that a test names it by.
  std::function<std::string(Branch, const std::filesystem::path& file)> keep_picture{};
  std::function<std::filesystem::path(Branch, const std::string& picture)> picture{};
};

/// The library of measured structures, with the calculated ones beside them. Each function may throw Failure.
struct LibrarySource {
  std::function<std::vector<LibraryFile>(Branch)> files;
  std::function<std::vector<TestEntry>(const LibraryFile&)> tests;
  std::function<std::optional<MeasuredTest>(const LibraryFile&, const std::string& name)> test;
  OwnMeasurementSource own{};
};

}  // namespace velmar::structures
