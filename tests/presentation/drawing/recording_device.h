#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QRectF>
#include <QString>
#include <memory>
#include <vector>

namespace velmar::presentation {

/// A piece of text as it reached the paper, in device units.
struct RecordedText {
  QString text{};
  QRectF box{};
  double pixels = 0.0;  ///< height of its font on the device
  bool bold = false;
};

/// Paper that remembers the texts and the extent of everything drawn on it instead of showing it.
class RecordingDevice : public QPaintDevice {
 public:
  explicit RecordingDevice(const QSize& size);
  ~RecordingDevice() override;

  QPaintEngine* paintEngine() const override;

  const std::vector<RecordedText>& Texts() const;
  /// What each line, area and text covers, in the order drawn.
  const std::vector<QRectF>& Shapes() const;
  /// What all lines, areas and texts cover.
  QRectF Extent() const;
  int Pictures() const;
  /// Whether a text contains `words`.
  bool Says(const QString& words) const;
  /// The first text that contains `words`; an empty one when there is none.
  RecordedText Find(const QString& words) const;

 protected:
  int metric(PaintDeviceMetric metric) const override;

 private:
  class Engine;
  QSize size_;
  std::unique_ptr<Engine> engine_;
};

}  // namespace velmar::presentation
