#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "calculation/facade_parts.h"
#include "shell/structures/branches.h"
#include "storage/results/result_copy.h"

namespace velmar::structures {

/// The tables of stored results that a window offers (`Option1`).
enum class ResultKind { kAirborne = 0, kImpact = 1, kLining = 2 };

/// A line of the grid of stored results.
struct ResultEntry {
  std::string name{};
  std::string description{};
};

using storage::CopiedTable;

/// The stored results. Each function may throw Failure; nothing has changed then.
struct ResultSource {
  std::function<std::vector<ResultEntry>(ResultKind)> list;
  std::function<std::optional<calculation::FacadePart>(ResultKind, const std::string& name)> find;
  /// The fields of a stored result as they go to the clipboard; empty when there is none of that name.
  std::function<CopiedTable(ResultKind, const std::string& name)> copy;
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
};

/// The library of measured structures, with the calculated ones beside them. Each function may throw Failure.
struct LibrarySource {
  std::function<std::vector<LibraryFile>(Branch)> files;
  std::function<std::vector<TestEntry>(const LibraryFile&)> tests;
  std::function<std::optional<MeasuredTest>(const LibraryFile&, const std::string& name)> test;
};

}  // namespace velmar::structures
