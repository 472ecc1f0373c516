#pragma once

namespace velmar::access_reader {

/// How the program ends. Whoever starts it takes the copy only after kDone.
enum class ExitCode : int {
  kDone = 0,
  kWrongUsage = 1,
  kNotOpened = 2,       ///< no Access file, or an encrypted one
  kNoCatalog = 3,       ///< the list of tables cannot be read
  kTableDamaged = 4,    ///< a table cannot be read whole, or the file holds more than the program takes
  kReaderDied = 5,      ///< the reading crashed or used up its time or memory
  kCopyNotWritten = 6,  ///< the SQLite file cannot be made
};

/// Ends the reading with an exit code and a sentence for the log.
struct ReadingFailure {
  ExitCode code = ExitCode::kTableDamaged;
  const char* reason = "";
};

}  // namespace velmar::access_reader
