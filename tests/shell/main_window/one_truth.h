#pragma once

#include <QString>

#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {

/// What is untrue on the screen now, empty when nothing is: every field of the pages that are shown says what
/// the set-up holds, each row holds the material that it names, and the section draws the rows that are
/// there. A field in which someone types is passed over.
QString Untruth(const WindowFixture& fixture);

/// What a project file written and read now would lose of what the layer rows show; empty: nothing.
QString LostBySaving(const WindowFixture& fixture, const QString& file);

}  // namespace velmar::shell
