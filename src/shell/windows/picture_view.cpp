#include "shell/windows/picture_view.h"

#include <QImageReader>
#include <QPainter>

#include "foundation/message_rows.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr int kLargestPicturePx = 1600;

}  // namespace

PictureView::PictureView(const WindowTools& tools, QWidget* parent)
    : QWidget(parent), no_picture_(tools.Text(kNoPictureRow)) {
  setObjectName(QStringLiteral("Picture2"));
  setAccessibleName(tools.Text(kStructurePictureRow));
  setMinimumSize(120, 90);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

void PictureView::Show(const std::filesystem::path& file) {
  picture_ = {};
  std::error_code error;
  if (!file.empty() && std::filesystem::is_regular_file(file, error)) {
    QImageReader reader(FromUtf8(file.string()));
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.width() > kLargestPicturePx || size.height() > kLargestPicturePx)
      reader.setScaledSize(size.scaled(kLargestPicturePx, kLargestPicturePx, Qt::KeepAspectRatio));
    picture_ = reader.read();
  }
  update();
}

QSize PictureView::sizeHint() const { return {200, 260}; }

void PictureView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (picture_.isNull()) {
    painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, no_picture_);
    return;
  }
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  QRect place(QPoint(), picture_.size().scaled(size(), Qt::KeepAspectRatio));
  place.moveCenter(rect().center());
  painter.drawImage(place, picture_);
}

}  // namespace velmar::shell
