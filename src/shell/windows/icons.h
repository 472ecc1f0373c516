#pragma once

#include <QIcon>

namespace velmar::shell {

/// The line drawing `name` of the product's icons. Its ink follows the palette, light or dark, and it is
/// drawn anew at every size, so it stays crisp on any screen.
QIcon LineIcon(const char* name);

/// The same drawing in the palette's colour for highlighted text, as on a filled button.
QIcon LightLineIcon(const char* name);

/// The product's own icon.
QIcon ProductIcon();

}  // namespace velmar::shell
