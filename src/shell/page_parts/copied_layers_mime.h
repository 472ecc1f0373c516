#pragma once

#include <optional>

#include "calculation/edits/copied_layers.h"

class QMimeData;

namespace velmar::shell {

/// `layers` for the clipboard; as plain text a table of material, thickness and sheets, parted by tabs. The
/// caller owns it.
QMimeData* ToMime(const calculation::CopiedLayers& layers);
/// Nothing when `mime` holds no layers, or is null.
std::optional<calculation::CopiedLayers> LayersFromMime(const QMimeData* mime);

}  // namespace velmar::shell
