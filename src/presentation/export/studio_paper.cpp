#include "presentation/export/studio_paper.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>

#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::presentation {
namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kDotsPerInch = 600.0;
constexpr qint64 kMostPixels = 100'000'000;

QByteArray AsBytes(std::string_view bytes) {
  return QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

/// Drawn at `pixels`, on nothing: what lies behind shows through.
QImage DrawnVectors(QSvgRenderer& vectors, const QSize& pixels) {
  QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  vectors.render(&painter);
  return image;
}

QImage Bitmap(std::string_view bytes) {
  QByteArray data = AsBytes(bytes);
  QBuffer buffer(&data);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  if (static_cast<qint64>(size.width()) * size.height() > kMostPixels) return {};
  return reader.read();
}

std::string PngBytes(const QImage& image) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return buffer.data().toStdString();
}

/// The largest size of the shape of `picture` within the box, in millimetres.
QSizeF Within(const QSizeF& picture, double width_mm, double height_mm) {
  return picture.scaled(width_mm, height_mm, Qt::KeepAspectRatio);
}

std::int64_t Emu(double millimetres) {
  return std::llround(millimetres / kMillimetresPerInch * static_cast<double>(kEmuPerInch));
}

}  // namespace

std::optional<Picture> PictureOfFile(std::string_view bytes, double width_mm, double height_mm,
                                     const std::string& alternative_text) {
  QImage image = Bitmap(bytes);
  QSizeF millimetres = Within(image.size(), width_mm, height_mm);
  const QSizeF wanted = QSizeF(width_mm, height_mm) * (kDotsPerInch / kMillimetresPerInch);
  if (bytes.find("<svg") != std::string_view::npos && !bytes.starts_with('\x89')) {
    QSvgRenderer vectors(AsBytes(bytes));
    if (!vectors.isValid() || vectors.defaultSize().isEmpty()) return std::nullopt;
    vectors.setAspectRatioMode(Qt::KeepAspectRatio);
    millimetres = Within(vectors.defaultSize(), width_mm, height_mm);
    image = DrawnVectors(vectors, (millimetres * (kDotsPerInch / kMillimetresPerInch)).toSize());
  } else if (image.width() > wanted.width() || image.height() > wanted.height()) {
    image = image.scaled(wanted.toSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
  }
  if (image.isNull() || millimetres.isEmpty()) return std::nullopt;
  return Picture{.png = PngBytes(image),
                 .width_emu = Emu(millimetres.width()),
                 .height_emu = Emu(millimetres.height()),
                 .alternative_text = alternative_text};
}

StudioPaper StudioPaperOf(const elements::StudioProfile& profile,
                          const std::function<std::string(const std::string& name)>& read,
                          const std::function<void(const Message&)>& left_out) {
  StudioPaper paper{.words = LetterheadOf(profile)};
  const auto picture = [&](const std::string& name, MessageRow caption, double width_mm,
                           double height_mm) -> std::optional<Picture> {
    if (name.empty()) return std::nullopt;
    Message told{{kStudioPictureLeftOutRow, " ", caption}};
    try {
      std::optional<Picture> found = PictureOfFile(read(name), width_mm, height_mm, profile.name);
      if (found) return found;
      told.push_back({kStudioBadPictureRow});
    } catch (const Failure& failure) {
      told.insert(told.end(), failure.UserMessage().begin(), failure.UserMessage().end());
    }
    if (left_out) left_out(told);
    return std::nullopt;
  };
  paper.logo = picture(profile.logo, kStudioLogoRow, kLogoWidthMm, kLogoHeightMm);
  paper.signature = picture(profile.signature, kStudioSignatureRow, kSignatureWidthMm, kSignatureHeightMm);
  return paper;
}

}  // namespace velmar::presentation
