#include "shell/fields/dragged_material.h"

#include <QMimeData>

namespace velmar::shell {
namespace {

constexpr const char* kMimeType = "application/x-velmar-material";

}  // namespace

QMimeData* ToMime(const DraggedMaterial& material) {
  auto* mime = new QMimeData;
  mime->setData(kMimeType,
                QByteArray::number(static_cast<int>(material.family)) + '\n' + material.name.toUtf8());
  mime->setText(material.name);
  return mime;
}

std::optional<DraggedMaterial> FromMime(const QMimeData& mime) {
  const QByteArray data = mime.data(kMimeType);
  const qsizetype line = data.indexOf('\n');
  bool known = false;
  const int family = data.left(line).toInt(&known);
  if (line < 1 || !known || family < 0 || family > static_cast<int>(elements::MaterialFamily::kResilient))
    return std::nullopt;
  return DraggedMaterial{static_cast<elements::MaterialFamily>(family),
                         QString::fromUtf8(data.mid(line + 1))};
}

}  // namespace velmar::shell
