#include "access_reader/access_file.h"

#include <cstdint>
#include <cstring>
#include <filesystem>

#include "access_reader/access_table.h"
#include "access_reader/exit_code.h"

namespace velmar::access_reader {
namespace {

/// The number of rows that the system table which lists all others states.
std::uint64_t StatedCatalogRows(MdbHandle* mdb) {
  MdbCatalogEntry catalog{};
  catalog.mdb = mdb;
  catalog.object_type = MDB_TABLE;
  catalog.table_pg = 2;
  std::strcpy(catalog.object_name, "MSysObjects");
  return AccessTable(&catalog).StatedRows();
}

}  // namespace

AccessFile::AccessFile(const char* path) : mdb_(mdb_open(path, MDB_NOFLAGS)) {
  if (!mdb_) throw ReadingFailure{ExitCode::kNotOpened, "the file is not an Access file that can be read"};
  const std::uintmax_t bytes = std::filesystem::file_size(path);
  // libmdb fills a page that is cut in two with zeros, and its values become nulls.
  if (bytes % static_cast<std::uintmax_t>(mdb_->fmt->pg_size) != 0) {
    throw ReadingFailure{ExitCode::kNotOpened, "the file ends in the middle of a page"};
  }
  mdb_set_bind_size(mdb_.get(), kTextBytes);
  const GPtrArray* catalog = mdb_read_catalog(mdb_.get(), MDB_ANY);
  if (catalog == nullptr) throw ReadingFailure{ExitCode::kNoCatalog, "the list of tables cannot be read"};
  // libmdb passes over an entry that it cannot read, and a whole table would go missing unnoticed.
  if (catalog->len != StatedCatalogRows(mdb_.get())) {
    throw ReadingFailure{ExitCode::kNoCatalog, "the list of tables is cut"};
  }
  constexpr std::size_t kMostTables = 200;
  for (guint i = 0; i < catalog->len; ++i) {
    auto* entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(catalog, i));
    if (entry->object_type != MDB_TABLE || mdb_is_user_table(entry) == 0) continue;
    // Behind the end libmdb would take whatever page it read last for the definition.
    if ((entry->table_pg + 1) * static_cast<std::uintmax_t>(mdb_->fmt->pg_size) > bytes) {
      throw ReadingFailure{ExitCode::kTableDamaged, "a table definition lies behind the end of the file"};
    }
    tables_.push_back(entry);
    if (tables_.size() > kMostTables) throw ReadingFailure{ExitCode::kTableDamaged, "more than 200 tables"};
  }
}

}  // namespace velmar::access_reader
