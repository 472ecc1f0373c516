#include "shell/results/chart_view.h"

#include <QBuffer>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QImage>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "foundation/decimal.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "presentation/drawing/chart_numbers.h"
#include "presentation/export/chart_svg.h"
#include "shell/results/chart_zoom.h"
#include "shell/windows/phrases.h"
#include "storage/files/whole_file.h"

namespace velmar::shell {
namespace {

constexpr double kPictureScale = 3.0;
constexpr double kZoomStep = 0.8;  ///< of the window, closer
constexpr double kMoveStep = 0.1;  ///< of the window
constexpr double kNotch = 120.0;   ///< of a wheel, in eighths of a degree

std::string Png(const QImage& picture) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  picture.save(&buffer, "PNG");
  return buffer.data().toStdString();
}

}  // namespace

ChartView::ChartView(const Speech& speech, QWidget* parent)
    : QWidget(parent), speech_(speech), chart_(presentation::EmptyChart(speech.words)) {
  setObjectName("Picture1");
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(Text(speech_.words, kChartRow));
  setToolTip(Text(speech_.words, kChartKeysRow));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ChartView::Show(const presentation::CurveChart& chart) {
  const std::optional<std::size_t> marked = chart_.highlighted_band;
  chart_ = chart;
  chart_.marks.window = window_;
  Mark(marked);
  QStringList tip = {Text(speech_.words, kChartKeysRow), FromUtf8(chart_.words.deviations),
                     FromUtf8(chart_.words.deviations_note)};
  tip.removeAll(QString());
  setToolTip(tip.join('\n'));
  update();
}

void ChartView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setFont(font());
  presentation::DrawCurveChart(painter, QRectF(rect()), chart_);
  if (!hasFocus()) return;
  QStyleOptionFocusRect option;
  option.initFrom(this);
  option.backgroundColor = Qt::white;
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

QRectF ChartView::Plot() const { return presentation::PlotArea(QRectF(rect()), chart_, font()); }

/// The line of `band` is drawn and its values are told; a band without values has neither.
void ChartView::Mark(const std::optional<std::size_t>& band) {
  const bool known = band && !presentation::NumbersAt(chart_, *band).empty();
  const std::optional<std::size_t> marked = known ? band : std::nullopt;
  const QString values = marked ? BandText(*marked, QStringLiteral("  ·  ")) : QString();
  if (marked != chart_.highlighted_band) {
    chart_.highlighted_band = marked;
    update();
  }
  setAccessibleDescription(values);
  emit BandRead(values);
}

void ChartView::mousePressEvent(QMouseEvent* event) {
  QWidget::mousePressEvent(event);
  if (event->button() == Qt::LeftButton && !window_.IsWhole()) dragged_from_ = event->position();
}

void ChartView::mouseMoveEvent(QMouseEvent* event) {
  if (dragged_from_) {
    const QPointF by = event->position() - *dragged_from_;
    dragged_from_ = event->position();
    SeeThrough(Moved(window_, {-by.x() / Plot().width(), by.y() / Plot().height()}));
    return;
  }
  Mark(presentation::BandAt(event->position(), QRectF(rect()), chart_, font()));
  if (chart_.highlighted_band) {
    QToolTip::showText(event->globalPosition().toPoint(), BandText(*chart_.highlighted_band, "\n"), this);
  } else {
    QToolTip::hideText();
  }
}

void ChartView::mouseReleaseEvent(QMouseEvent* event) {
  QWidget::mouseReleaseEvent(event);
  dragged_from_.reset();
}

void ChartView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) SeeThrough({});
}

void ChartView::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier)) return QWidget::wheelEvent(event);
  const QRectF plot = Plot();
  const QPointF place((event->position().x() - plot.left()) / plot.width(),
                      (plot.bottom() - event->position().y()) / plot.height());
  const QPointF inside(std::clamp(place.x(), 0.0, 1.0), std::clamp(place.y(), 0.0, 1.0));
  SeeThrough(Zoomed(window_, std::pow(kZoomStep, event->angleDelta().y() / kNotch), inside));
  event->accept();
}

void ChartView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Plus:
      return Zoom(kZoomStep);
    case Qt::Key_Minus:
      return Zoom(1.0 / kZoomStep);
    case Qt::Key_0:
      return SeeThrough({});
    case Qt::Key_Escape:
      if (window_.IsWhole()) break;
      return SeeThrough({});
    default:
      if (event->matches(QKeySequence::Copy)) return CopyNumbers();
      if (TakeArrow(event->key(), event->modifiers() & Qt::ShiftModifier)) return;
      break;
  }
  QWidget::keyPressEvent(event);
}

/// @param moving the chart moves; else the marked band
bool ChartView::TakeArrow(int key, bool moving) {
  switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right: {
      const int sign = key == Qt::Key_Right ? 1 : -1;
      if (moving) {
        SeeThrough(Moved(window_, {sign * kMoveStep, 0.0}));
      } else {
        StepBand(sign);
      }
      return true;
    }
    case Qt::Key_Up:
    case Qt::Key_Down:
      if (!moving) return false;
      SeeThrough(Moved(window_, {0.0, key == Qt::Key_Up ? kMoveStep : -kMoveStep}));
      return true;
    default:
      return false;
  }
}

/// Marks `band` and shows its values beside its line, as the pointer does.
void ChartView::MarkByKey(std::size_t band) {
  Mark(band);
  if (!chart_.highlighted_band) return;
  const QRectF plot = Plot();
  const double across = (static_cast<double>(band) - window_.left) / (window_.right - window_.left);
  const QPointF place(plot.left() + std::clamp(across, 0.0, 1.0) * plot.width(), plot.top());
  QToolTip::showText(mapToGlobal(place.toPoint()), BandText(band, "\n"), this);
}

/// Marks the next band with a value; the first is 500 Hz.
void ChartView::StepBand(int by) {
  constexpr std::size_t k500Hz = 10;
  if (!chart_.highlighted_band) return MarkByKey(k500Hz);
  const int last = static_cast<int>(chart_.last_band);
  for (int band = static_cast<int>(*chart_.highlighted_band) + by; band >= 0 && band <= last; band += by) {
    if (presentation::NumbersAt(chart_, static_cast<std::size_t>(band)).empty()) continue;
    return MarkByKey(static_cast<std::size_t>(band));
  }
}

void ChartView::SeeThrough(const presentation::ChartWindow& window) {
  window_ = window;
  chart_.marks.window = window;
  update();
}

/// Around the marked band, or the middle.
void ChartView::Zoom(double factor) {
  QPointF place(0.5, 0.5);
  if (chart_.highlighted_band) {
    const double across =
        (static_cast<double>(*chart_.highlighted_band) - window_.left) / (window_.right - window_.left);
    place.setX(std::clamp(across, 0.0, 1.0));
  }
  SeeThrough(Zoomed(window_, factor, place));
}

void ChartView::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  if (!hasFocus()) Mark(std::nullopt);
}

void ChartView::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  if (!underMouse()) Mark(std::nullopt);
}

QString ChartView::BandText(std::size_t band, const QString& between) const {
  QStringList values = {FromUtf8(FormatShortest(acoustics::BandCentre(band))) + " Hz"};
  for (const presentation::ChartNumber& number : presentation::NumbersAt(chart_, band))
    values += FromUtf8(number.name) + ": " + FromUtf8(FormatFixed(number.level_db, 1)) + " dB";
  return values.join(between);
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

void ChartView::CopyNumbers() const {
  QGuiApplication::clipboard()->setText(FromUtf8(presentation::NumbersTable(chart_)));
}

void ChartView::Save(bool as_svg) {
  const MessageRow title = as_svg ? kSaveSvgRow : kSavePngRow;
  const auto path = AskFileToSave(
      speech_, {.title = Text(speech_.words, title), .filter = as_svg ? "SVG (*.svg)" : "PNG (*.png)"},
      as_svg ? ".svg" : ".png");
  if (!path) return;
  try {
    storage::WriteWhole(*path, as_svg ? presentation::ChartSvg(Plain(), chart_.words.calculated)
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
  menu->addAction(Text(speech_.words, kCopyNumbersRow), this, &ChartView::CopyNumbers)
      ->setObjectName("CopiaValori");
  menu->addAction(Text(speech_.words, kSavePngRow), [this] { Save(/*as_svg=*/false); });
  menu->addAction(Text(speech_.words, kSaveSvgRow), [this] { Save(/*as_svg=*/true); });
  menu->addSeparator();
  menu->addAction(Text(speech_.words, kZoomInRow) + "\t+", [this] { Zoom(kZoomStep); });
  menu->addAction(Text(speech_.words, kZoomOutRow) + "\t−", [this] { Zoom(1.0 / kZoomStep); });
  menu->addAction(Text(speech_.words, kWholeChartRow) + "\t0", [this] { SeeThrough({}); });
  menu->popup(event->globalPos());
}

}  // namespace velmar::shell
