#pragma once

#include <memory>
#include <vector>

#include <glib.h>
// GLib goes first: mdbtools.h would include it inside extern "C".
#include <mdbtools.h>

namespace velmar::access_reader {

/// An open Access file.
class AccessFile {
 public:
  /// @throws ReadingFailure when the file is none of Jet 3, Jet 4 or ACE, or is encrypted, or when its list
  ///         of tables cannot be read or is longer than 200
  explicit AccessFile(const char* path);

  /// The tables that a user made. System tables and links to other files are left out.
  const std::vector<MdbCatalogEntry*>& UserTables() const { return tables_; }

 private:
  struct Close {
    void operator()(MdbHandle* mdb) const { mdb_close(mdb); }
  };
  std::unique_ptr<MdbHandle, Close> mdb_;
  std::vector<MdbCatalogEntry*> tables_;
};

}  // namespace velmar::access_reader
