#include "tests/presentation/drawing/recording_device.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace velmar::presentation {

class RecordingDevice::Engine : public QPaintEngine {
 public:
  Engine() : QPaintEngine(AllFeatures) {}

  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  Type type() const override { return User; }
  void updateState(const QPaintEngineState&) override {}

  void drawPixmap(const QRectF& target, const QPixmap&, const QRectF&) override { AddPicture(target); }
  void drawImage(const QRectF& target, const QImage&, const QRectF&, Qt::ImageConversionFlags) override {
    AddPicture(target);
  }
  void drawPath(const QPainterPath& path) override { Add(path.boundingRect()); }
  void drawPolygon(const QPointF* points, int count, PolygonDrawMode) override {
    QPolygonF polygon;
    for (int i = 0; i < count; ++i) polygon << points[i];
    Add(polygon.boundingRect());
  }
  void drawTextItem(const QPointF& at, const QTextItem& item) override {
    const QTransform to_device = painter()->combinedTransform();
    const QRectF box(at.x(), at.y() - item.ascent(), item.width(), item.ascent() + item.descent());
    const double scale = std::sqrt(std::abs(to_device.determinant()));
    Record({item.text(), to_device.mapRect(box), item.font().pixelSize() * scale, item.font().bold()});
    Add(box);
  }

  std::vector<RecordedText> texts{};
  std::vector<QRectF> shapes{};
  QRectF extent{};
  int pictures = 0;

 private:
  /// A line comes in pieces where its font lacks a sign and another lends it.
  void Record(const RecordedText& piece) {
    constexpr double kSamePlace = 0.5;
    RecordedText* last = texts.empty() ? nullptr : &texts.back();
    if (last == nullptr || last->pixels != piece.pixels || last->bold != piece.bold ||
        std::abs(last->box.right() - piece.box.left()) > kSamePlace ||
        std::min(last->box.bottom(), piece.box.bottom()) <= std::max(last->box.top(), piece.box.top())) {
      texts.push_back(piece);
      return;
    }
    last->text += piece.text;
    last->box |= piece.box;
  }
  void AddPicture(const QRectF& target) {
    ++pictures;
    Add(target);
  }
  /// Counts what the clip lets through.
  void Add(const QRectF& box) {
    QRectF visible = box.normalized().adjusted(0.0, 0.0, 1e-6, 1e-6);
    if (painter()->hasClipping()) visible &= painter()->clipBoundingRect();
    if (visible.isEmpty()) return;
    shapes.push_back(painter()->combinedTransform().mapRect(visible));
    extent |= shapes.back();
  }
};

RecordingDevice::RecordingDevice(const QSize& size) : size_(size), engine_(std::make_unique<Engine>()) {}
RecordingDevice::~RecordingDevice() = default;

QPaintEngine* RecordingDevice::paintEngine() const { return engine_.get(); }
const std::vector<RecordedText>& RecordingDevice::Texts() const { return engine_->texts; }
const std::vector<QRectF>& RecordingDevice::Shapes() const { return engine_->shapes; }
QRectF RecordingDevice::Extent() const { return engine_->extent; }
int RecordingDevice::Pictures() const { return engine_->pictures; }

RecordedText RecordingDevice::Find(const QString& words) const {
  const auto found = std::ranges::find_if(
      engine_->texts, [&](const RecordedText& text) { return text.text.contains(words); });
  return found == engine_->texts.end() ? RecordedText{} : *found;
}

bool RecordingDevice::Says(const QString& words) const { return !Find(words).text.isEmpty(); }

int RecordingDevice::metric(PaintDeviceMetric metric) const {
  switch (metric) {
    case PdmWidth:
      return size_.width();
    case PdmHeight:
      return size_.height();
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
      return 96;
    case PdmDevicePixelRatio:
      return 1;
    case PdmDepth:
      return 32;
    default:
      return QPaintDevice::metric(metric);
  }
}

}  // namespace velmar::presentation
