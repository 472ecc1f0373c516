#include "shell/page_parts/copied_layers_mime.h"

#include <QMimeData>
#include <QStringList>

#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr const char* kMimeType = "application/x-velmar-layers";

template <typename Material>
QString TableLine(const elements::LayerRow<Material>& row) {
  return QStringList{FromUtf8(row.listed), FromUtf8(row.thickness_text), QString::number(row.multiplicity)}
      .join('\t');
}
QString TableLine(const calculation::CopiedLeafLayer& layer) { return TableLine(layer.row); }

}  // namespace

QMimeData* ToMime(const calculation::CopiedLayers& layers) {
  auto* mime = new QMimeData;
  mime->setData(kMimeType, QByteArray::fromStdString(WriteLayers(layers)));
  QStringList lines;
  std::visit(
      [&](const auto& rows) {
        for (const auto& row : rows) lines += TableLine(row);
      },
      layers);
  mime->setText(lines.join('\n'));
  return mime;
}

std::optional<calculation::CopiedLayers> LayersFromMime(const QMimeData* mime) {
  if (mime == nullptr || !mime->hasFormat(kMimeType)) return std::nullopt;
  return calculation::ReadLayers(mime->data(kMimeType).toStdString());
}

}  // namespace velmar::shell
