#pragma once

// The rows of the messages by name. A header that needs no more than the catalogue's includes that one alone:
// the catalogue never grows, the further texts do, and would compile everything anew.
#include "foundation/catalogue_rows.h"  // IWYU pragma: export
#include "foundation/texts_rows.h"      // IWYU pragma: export
