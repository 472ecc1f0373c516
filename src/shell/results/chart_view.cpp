#include "shell/results/chart_view.h"

#include <QBuffer>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QImage>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "foundation/decimal.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "presentation/drawing/chart_scale.h"
#include "presentation/export/chart_svg.h"
#include "shell/fields/phrases.h"
#include "storage/files/whole_file.h"

namespace velmar::shell {
namespace {

constexpr double kPictureScale = 3.0;

std::string Png(const QImage& picture) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  picture.save(&buffer, "PNG");
  return buffer.data().toStdString();
}

QString Level(const std::string& name, double level_db) {
  return FromUtf8(name) + ": " + FromUtf8(FormatFixed(level_db, 1)) + " dB";
}

}  // namespace

ChartView::ChartView(const Speech& speech, QWidget* parent)
    : QWidget(parent), speech_(speech), chart_(presentation::EmptyChart(speech.words)) {
  setObjectName("Picture1");
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ChartView::Show(const presentation::CurveChart& chart) {
  chart_ = chart;
  update();
}

void ChartView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setFont(font());
  presentation::DrawCurveChart(painter, QRectF(rect()), chart_);
}

void ChartView::mouseMoveEvent(QMouseEvent* event) {
  const auto band = presentation::BandAt(event->position(), QRectF(rect()), chart_, font());
  const bool known =
      band && *band >= chart_.first_band && *band <= chart_.last_band && chart_.values.at(*band) != 0.0;
  const std::optional<std::size_t> marked = known ? band : std::nullopt;
  if (marked != chart_.highlighted_band) {
    chart_.highlighted_band = marked;
    update();
  }
  if (marked) {
    QToolTip::showText(event->globalPosition().toPoint(), BandText(*marked), this);
  } else {
    QToolTip::hideText();
  }
}

void ChartView::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  chart_.highlighted_band.reset();
  update();
}

QString ChartView::BandText(std::size_t band) const {
  QStringList lines = {FromUtf8(FormatShortest(acoustics::BandCentre(band))) + " Hz",
                       Level(chart_.words.calculated, chart_.values.at(band))};
  const bool rated = band >= acoustics::kFirstRatedBand && band <= acoustics::kLastRatedBand;
  if (chart_.shift && rated)
    lines +=
        Level(chart_.words.reference, chart_.reference.at(band - acoustics::kFirstRatedBand) + *chart_.shift);
  const auto add = [&](const std::optional<acoustics::Spectrum>& curve, const std::string& name) {
    if (curve && curve->at(band) != 0.0) lines += Level(name, curve->at(band));
  };
  add(chart_.base, chart_.words.base);
  add(chart_.laboratory, chart_.words.laboratory);
  add(chart_.in_situ, chart_.words.in_situ);
  for (const presentation::FurtherCurve& curve : chart_.further) add(curve.values, curve.name);
  return lines.join('\n');
}

/// The chart as it is without a mouse.
presentation::CurveChart ChartView::Plain() const {
  presentation::CurveChart plain = chart_;
  plain.highlighted_band.reset();
  return plain;
}

QImage ChartView::Picture(double scale) const {
  QImage picture((QSizeF(size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
  picture.setDevicePixelRatio(scale);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setFont(font());
  presentation::DrawCurveChart(painter, QRectF(rect()), Plain());
  return picture;
}

void ChartView::Save(bool as_svg) {
  const MessageRow title = as_svg ? kSaveSvgRow : kSavePngRow;
  QString path = speech_.boxes.choose_file_to_save(
      {.title = Text(speech_.words, title), .filter = as_svg ? "SVG (*.svg)" : "PNG (*.png)"});
  if (path.isEmpty()) return;
  const QString ending = as_svg ? ".svg" : ".png";
  if (!path.endsWith(ending, Qt::CaseInsensitive)) path += ending;
  try {
    storage::WriteWhole(ToUtf8(path), as_svg ? presentation::ChartSvg(Plain(), chart_.words.calculated)
                                             : Png(Picture(kPictureScale)));
  } catch (const Failure& failure) {
    speech_.boxes.tell(Tone::kCritical, Text(speech_.words, failure.UserMessage()));
  }
}

void ChartView::contextMenuEvent(QContextMenuEvent* event) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addAction(Text(speech_.words, kCopyPictureRow),
                  [this] { QGuiApplication::clipboard()->setImage(Picture(kPictureScale)); });
  menu->addAction(Text(speech_.words, kSavePngRow), [this] { Save(/*as_svg=*/false); });
  menu->addAction(Text(speech_.words, kSaveSvgRow), [this] { Save(/*as_svg=*/true); });
  menu->popup(event->globalPos());
}

}  // namespace velmar::shell
