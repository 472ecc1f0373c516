#include "shell/fields/field_note.h"

#include <QAccessible>
#include <QEvent>
#include <QPainter>
#include <QScrollArea>

namespace velmar::shell {
namespace {

constexpr const char* kName = "NotaCampo";
constexpr int kReadingTimeMs = 8000;
constexpr int kWidest = 340;
constexpr int kPadding = 6;
constexpr int kGap = 3;
constexpr int kFrameMargin = 2;
constexpr double kCorner = 3.0;
constexpr int kHalfLightness = 128;

struct Colours {
  QColor line{};
  QColor ground{};
  QColor ink{};
};
Colours ColoursOn(const QPalette& palette) {
  if (palette.color(QPalette::Window).lightness() < kHalfLightness)
    return {QColor(0xF2, 0x8B, 0x82), QColor(0x4A, 0x20, 0x22), QColor(0xFF, 0xDE, 0xDB)};
  return {QColor(0xC6, 0x28, 0x28), QColor(0xFD, 0xEC, 0xEA), QColor(0x7A, 0x12, 0x12)};
}

/// What scrolls with the field, and else its window.
QWidget* PageOf(QWidget* field) {
  for (QWidget* widget = field->parentWidget(); widget != nullptr; widget = widget->parentWidget()) {
    const auto* viewport = widget->parentWidget();
    const auto* area = viewport != nullptr ? qobject_cast<QScrollArea*>(viewport->parentWidget()) : nullptr;
    if ((area != nullptr && area->widget() == widget) || widget->isWindow()) return widget;
  }
  return field;
}

}  // namespace

void FieldNote::Put(QWidget* field, const QString& text, NoteLife life) {
  for (QWidget* other : field->window()->findChildren<QWidget*>(kName)) delete other;
  if (!field->isVisible()) return;
  auto* note = new FieldNote(field, PageOf(field), text);
  if (life == NoteLife::kWhileRead) note->end_.start(kReadingTimeMs);
  note->show();
  note->raise();
  QAccessibleEvent alert(note, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

QString FieldNote::TextAt(const QWidget* field) {
  for (const QWidget* note : field->window()->findChildren<QWidget*>(kName)) {
    if (static_cast<const FieldNote*>(note)->field_ == field) return note->accessibleName();
  }
  return {};
}

FieldNote::FieldNote(QWidget* field, QWidget* page, QString text)
    : QWidget(page),
      field_(field),
      text_(std::move(text)),
      described_before_(field->accessibleDescription()) {
  setObjectName(kName);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAccessibleName(text_);
  field->setAccessibleDescription(text_);
  field->installEventFilter(this);
  page->installEventFilter(this);
  end_.setSingleShot(true);
  connect(&end_, &QTimer::timeout, this, [this] { deleteLater(); });
  Place();
}

FieldNote::~FieldNote() {
  if (field_) field_->setAccessibleDescription(described_before_);
}

void FieldNote::Place() {
  const QWidget* page = parentWidget();
  const QRect field(field_->mapTo(page, QPoint(0, 0)), field_->size());
  const int widest = std::min(kWidest, page->width()) - 2 * kPadding;
  QSize words =
      fontMetrics().boundingRect(QRect(0, 0, widest, page->height()), Qt::TextWordWrap, text_).size();
  words += QSize(2 * kPadding, 2 * kPadding);
  const int left = std::clamp(field.left(), 0, std::max(0, page->width() - words.width()));
  const bool fits_below = field.bottom() + kGap + words.height() < page->height();
  const int top = fits_below ? field.bottom() + 1 + kGap : field.top() - kGap - words.height();
  const QRect frame = field.adjusted(-kFrameMargin, -kFrameMargin, kFrameMargin, kFrameMargin);
  const QRect bubble(QPoint(left, top), words);
  setGeometry(frame.united(bubble));
  field_frame_ = frame.translated(-pos());
  words_frame_ = bubble.translated(-pos());
}

void FieldNote::paintEvent(QPaintEvent* /*event*/) {
  const Colours colours = ColoursOn(palette());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colours.line, 2.0));
  painter.drawRoundedRect(QRectF(field_frame_).adjusted(1, 1, -1, -1), kCorner, kCorner);
  painter.setPen(QPen(colours.line, 1.0));
  painter.setBrush(colours.ground);
  painter.drawRoundedRect(QRectF(words_frame_).adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
  painter.setPen(colours.ink);
  painter.drawText(words_frame_.adjusted(kPadding, kPadding, -kPadding, -kPadding), Qt::TextWordWrap, text_);
}

bool FieldNote::eventFilter(QObject* watched, QEvent* event) {
  const bool of_field = watched == field_;
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::Wheel:
    case QEvent::Hide:
      if (of_field) deleteLater();
      break;
    case QEvent::Move:
    case QEvent::Resize:
      if (field_) Place();
      update();
      break;
    default:
      break;
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace velmar::shell
