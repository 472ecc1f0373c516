#pragma once

#include <QString>
#include <optional>

#include "elements/layer_groups.h"

class QMimeData;

namespace velmar::shell {

/// A dragged or copied material: its family and its name. The tree of materials and the handles of the layer
/// rows give it, the material lists of the same family take it.
struct DraggedMaterial {
  elements::MaterialFamily family{};
  QString name{};
};

/// `material` for a drag or the clipboard; as plain text it is the name. The caller owns it.
QMimeData* ToMime(const DraggedMaterial& material);
/// Nothing when `mime` holds no material.
std::optional<DraggedMaterial> FromMime(const QMimeData& mime);

}  // namespace velmar::shell
