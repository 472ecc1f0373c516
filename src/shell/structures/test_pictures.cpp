#include <QImageReader>
#include <QPainter>
#include <filesystem>

#include "presentation/drawing/text.h"
#include "shell/structures/test_details.h"

namespace velmar::structures {
namespace {

constexpr MessageRow kPictureNameRow{1716};
constexpr MessageRow kCurveNameRow{1717};
constexpr MessageRow kNoPictureRow{1718};
constexpr int kLargestPicturePx = 1600;

}  // namespace

MeasuredCurveView::MeasuredCurveView(const windows::WindowTools& tools, QWidget* parent)
    : QWidget(parent), empty_(presentation::EmptyChart(tools.words)), chart_(empty_) {
  setObjectName(QStringLiteral("Picture1"));
  setAccessibleName(tools.Text(kCurveNameRow));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void MeasuredCurveView::Show(const std::optional<MeasuredTest>& test, const BranchSymbols& symbols) {
  chart_ = empty_;
  if (test) {
    for (std::size_t i = 0; i < chart_.values.size(); ++i) {
      const std::optional<double>& value = test->part.bands_db[i];
      chart_.values[i] = value == calculation::kNotMeasuredDb ? 0.0 : value.value_or(0.0);
    }
    chart_.autoscale = true;
    chart_.words.level_axis = symbols.bands;
  }
  update();
}

QSize MeasuredCurveView::sizeHint() const { return {420, 260}; }
QSize MeasuredCurveView::minimumSizeHint() const { return {300, 170}; }

void MeasuredCurveView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(font());
  presentation::DrawCurveChart(painter, rect(), chart_);
}

PictureView::PictureView(const windows::WindowTools& tools, QWidget* parent)
    : QWidget(parent), no_picture_(tools.Text(kNoPictureRow)) {
  setObjectName(QStringLiteral("Picture2"));
  setAccessibleName(tools.Text(kPictureNameRow));
  setMinimumSize(120, 90);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

void PictureView::Show(const std::filesystem::path& file) {
  picture_ = {};
  std::error_code error;
  if (!file.empty() && std::filesystem::is_regular_file(file, error)) {
    QImageReader reader(windows::ToQt(file.string()));
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

}  // namespace velmar::structures
