#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace velmar::access_reader {

/// A value of an Access table: null, a whole number (also yes/no as 1 and 0), a real number, a text in
/// UTF-8, bytes.
using Value = std::variant<std::monostate, std::int64_t, double, std::string, std::vector<std::byte>>;

enum class Storage { kInteger, kReal, kText, kBytes };

struct ColumnInfo {
  std::string name;
  Storage storage = Storage::kText;
};

struct IndexInfo {
  std::string name;
  std::vector<std::string> columns;
  bool unique = false;
};

}  // namespace velmar::access_reader
