#include "shell/fields/field_note.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScrollArea>
#include <algorithm>
#include <vector>

namespace velmar::shell {
namespace {

constexpr const char* kName = "NotaCampo";
/// The property by which a window holds the note that stands in it.
constexpr const char* kNoteOfWindow = "NotaCampo";
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

bool TakesEntries(const QWidget* widget) {
  return qobject_cast<const QLineEdit*>(widget) != nullptr ||
         qobject_cast<const QComboBox*>(widget) != nullptr ||
         qobject_cast<const QAbstractButton*>(widget) != nullptr;
}

/// Where the other fields of `page` stand, with a gap around them.
std::vector<QRect> OtherFields(const QWidget* page, const QWidget* field) {
  std::vector<QRect> places;
  for (const QWidget* widget : page->findChildren<QWidget*>()) {
    if (!widget->isVisibleTo(page) || !TakesEntries(widget) || widget == field ||
        field->isAncestorOf(widget) || widget->isAncestorOf(field))
      continue;
    places.push_back(QRect(widget->mapTo(page, QPoint(0, 0)), widget->size()).adjusted(-1, -1, 1, 1));
  }
  return places;
}

/// The nearest top for `words` at `left` that leaves the field and all others free, below the field or else
/// above it; below the field where the page has no such place.
int FreeTop(const QRect& field, const std::vector<QRect>& others, int left, const QSize& words, int height) {
  const auto is_free = [&](int top) {
    const QRect bubble(QPoint(left, top), words);
    return std::ranges::none_of(others, [&](const QRect& other) { return other.intersects(bubble); });
  };
  const int first_below = field.bottom() + 1 + kGap;
  for (int top = first_below; top + words.height() < height; ++top) {
    if (is_free(top)) return top;
  }
  for (int top = field.top() - kGap - words.height(); top >= 0; --top) {
    if (is_free(top)) return top;
  }
  return first_below;
}

}  // namespace

void FieldNote::Put(QWidget* field, const QString& text, NoteLife life) {
  delete NoteIn(field->window());
  if (!field->isVisible()) return;
  auto* note = new FieldNote(field, PageOf(field), text);
  if (life == NoteLife::kWhileRead) note->end_.start(kReadingTimeMs);
  note->show();
  note->raise();
  QAccessibleEvent alert(note, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

FieldNote* FieldNote::NoteIn(const QWidget* window) {
  return static_cast<FieldNote*>(window->property(kNoteOfWindow).value<QPointer<QWidget>>().data());
}

QString FieldNote::TextAt(const QWidget* field) {
  const FieldNote* note = NoteIn(field->window());
  return note != nullptr && note->field_ == field ? note->accessibleName() : QString();
}

FieldNote::FieldNote(QWidget* field, QWidget* page, QString text)
    : QWidget(page),
      field_(field),
      text_(std::move(text)),
      described_before_(field->accessibleDescription()) {
  setObjectName(kName);
  field->window()->setProperty(kNoteOfWindow, QVariant::fromValue(QPointer<QWidget>(this)));
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
  const int top = FreeTop(field, OtherFields(page, field_), left, words, page->height());
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
  // Words that found their place further away are led to.
  const bool below = words_frame_.top() > field_frame_.bottom();
  const int edge = std::max(field_frame_.left(), words_frame_.left()) + kFrameMargin;
  painter.drawLine(QPoint(edge, below ? field_frame_.bottom() : field_frame_.top()),
                   QPoint(edge, below ? words_frame_.top() : words_frame_.bottom()));
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
