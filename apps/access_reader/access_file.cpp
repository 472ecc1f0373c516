#include "access_reader/access_file.h"

#include <cstring>

#include "access_reader/access_table.h"
#include "access_reader/exit_code.h"

namespace velmar::access_reader {
namespace {

/// Whether the system table that lists all others has every row it states. libmdb passes over what is
/// missing, and whole tables with it.
bool CatalogIsWhole(MdbHandle* mdb) {
  MdbCatalogEntry catalog{};
  catalog.mdb = mdb;
  catalog.object_type = MDB_TABLE;
  catalog.table_pg = 2;
  std::strcpy(catalog.object_name, "MSysObjects");
  return AccessTable(&catalog).AllRowsThere();
}

}  // namespace

AccessFile::AccessFile(const char* path) : mdb_(mdb_open(path, MDB_NOFLAGS)) {
  if (!mdb_) throw ReadingFailure{ExitCode::kNotOpened, "the file is not an Access file that can be read"};
  mdb_set_bind_size(mdb_.get(), kTextBytes);
  const GPtrArray* catalog = mdb_read_catalog(mdb_.get(), MDB_TABLE);
  if (catalog == nullptr) throw ReadingFailure{ExitCode::kNoCatalog, "the list of tables cannot be read"};
  if (!CatalogIsWhole(mdb_.get())) throw ReadingFailure{ExitCode::kNoCatalog, "the list of tables is cut"};
  constexpr std::size_t kMostTables = 200;
  for (guint i = 0; i < catalog->len; ++i) {
    auto* entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(catalog, i));
    if (entry->object_type == MDB_TABLE && mdb_is_user_table(entry) != 0) tables_.push_back(entry);
    if (tables_.size() > kMostTables) throw ReadingFailure{ExitCode::kTableDamaged, "more than 200 tables"};
  }
}

}  // namespace velmar::access_reader
