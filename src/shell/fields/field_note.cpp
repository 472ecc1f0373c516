#include "shell/fields/field_note.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScrollArea>
#include <QTabBar>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <vector>

namespace velmar::shell {
namespace {

constexpr const char* kName = "NotaCampo";
/// The property by which a window holds the note that stands in it.
constexpr const char* kNoteOfWindow = "NotaCampo";
constexpr int kReadingTimeMs = 8000;
/// Words that find no place in long lines are broken into shorter ones.
constexpr std::array kWidths = {340, 240, 170, 136};
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
         qobject_cast<const QAbstractButton*>(widget) != nullptr ||
         qobject_cast<const QTabBar*>(widget) != nullptr;
}

bool IsCaption(const QWidget* widget) {
  const auto* label = qobject_cast<const QLabel*>(widget);
  return label != nullptr && !label->text().isEmpty();
}

/// What words beside a field may not stand on, in the coordinates of their page.
struct Taken {
  std::vector<QRect> fields;
  std::vector<QRect> captions;
};

/// The field itself and the others of `page`, with a gap around them, and the captions between them.
Taken TakenBy(const QWidget* page, const QWidget* field) {
  Taken taken;
  for (const QWidget* widget : page->findChildren<QWidget*>()) {
    if (!widget->isVisibleTo(page) || widget == field || field->isAncestorOf(widget)) continue;
    const QRect place(widget->mapTo(page, QPoint(0, 0)), widget->size());
    if (TakesEntries(widget) && !widget->isAncestorOf(field)) {
      taken.fields.push_back(place.adjusted(-1, -1, 1, 1));
    } else if (IsCaption(widget)) {
      taken.captions.push_back(place);
    }
  }
  taken.fields.push_back(
      QRect(field->mapTo(page, QPoint(0, 0)), field->size()).adjusted(-kGap, -kGap, kGap, kGap));
  return taken;
}

/// What is seen of `page`.
QRect Seen(const QWidget* page) {
  const QRect whole = page->rect();
  if (page->isWindow()) return whole;
  const QWidget* viewport = page->parentWidget();
  return whole & QRect(page->mapFrom(viewport, QPoint(0, 0)), viewport->size());
}

int Apart(int from, int to, int other_from, int other_to) {
  return std::max({0, other_from - to, from - other_to});
}

/// How far `words` stand from `field`: below it at its left edge is best.
int Remoteness(const QRect& words, const QRect& field) {
  constexpr int kOfAbove = 8;
  const int across = Apart(field.left(), field.right(), words.left(), words.right());
  const int down = Apart(field.top(), field.bottom(), words.top(), words.bottom());
  const int above = words.bottom() < field.top() ? kOfAbove : 0;
  return across + down + above + std::abs(words.left() - field.left()) / 4;
}

/// The place within `seen` for words of `size` that is nearest to `field` and meets none of the rectangles.
std::optional<QRect> NearestFree(const QSize& size, const QRect& field, const QRect& seen,
                                 const std::vector<QRect>& fields, const std::vector<QRect>& captions) {
  constexpr int kStep = 2;
  std::optional<QRect> best;
  const auto is_free = [&](const QRect& words) {
    const auto meets = [&words](const QRect& other) { return other.intersects(words); };
    return std::ranges::none_of(fields, meets) && std::ranges::none_of(captions, meets);
  };
  std::vector<int> lefts = {field.left()};
  for (int left = seen.left(); left + size.width() <= seen.right(); left += 4 * kStep) lefts.push_back(left);
  for (int top = seen.top(); top + size.height() <= seen.bottom(); top += kStep) {
    for (const int left : lefts) {
      const QRect words(QPoint(left, top), size);
      if (!seen.contains(words) || (best && Remoteness(words, field) >= Remoteness(*best, field))) continue;
      if (is_free(words)) best = words;
    }
  }
  return best;
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

void FieldNote::Remove(const QWidget* window) { delete NoteIn(window); }

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
  // Whatever holds the field may move it.
  for (QWidget* holder = field; holder != page; holder = holder->parentWidget())
    holder->installEventFilter(this);
  page->installEventFilter(this);
  end_.setSingleShot(true);
  connect(&end_, &QTimer::timeout, this, [this] { deleteLater(); });
  laid_out_.setSingleShot(true);
  connect(&laid_out_, &QTimer::timeout, this, &FieldNote::Place);
  Place();
}

FieldNote::~FieldNote() {
  if (field_) field_->setAccessibleDescription(described_before_);
}

QSize FieldNote::WordsWithin(int width) const {
  const QWidget* page = parentWidget();
  const QRect lines(0, 0, std::min(width, page->width()) - 2 * kPadding, page->height());
  return fontMetrics().boundingRect(lines, Qt::TextWordWrap, text_).size() +
         QSize(2 * kPadding, 2 * kPadding);
}

QRect FieldNote::PlaceOfWords(const QRect& field) const {
  const QWidget* page = parentWidget();
  const Taken taken = TakenBy(page, field_);
  const QRect seen = Seen(page);
  for (const bool spare_captions : {true, false}) {
    for (const int width : kWidths) {
      const auto place = NearestFree(WordsWithin(width), field, seen, taken.fields,
                                     spare_captions ? taken.captions : std::vector<QRect>());
      if (place) return *place;
    }
  }
  const QSize words = WordsWithin(kWidths.front());
  const int left = std::clamp(field.left(), 0, std::max(0, page->width() - words.width()));
  return {QPoint(left, field.bottom() + 1 + kGap), words};
}

void FieldNote::Place() {
  if (!field_) return;
  const QRect field(field_->mapTo(parentWidget(), QPoint(0, 0)), field_->size());
  const QRect frame = field.adjusted(-kFrameMargin, -kFrameMargin, kFrameMargin, kFrameMargin);
  const QRect words = PlaceOfWords(field);
  setGeometry(frame.united(words));
  field_frame_ = frame.translated(-pos());
  words_frame_ = words.translated(-pos());
  update();
}

void FieldNote::PlaceWhenLaidOut() { laid_out_.start(0); }

void FieldNote::paintEvent(QPaintEvent* /*event*/) {
  const Colours colours = ColoursOn(palette());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colours.line, 2.0));
  painter.drawRoundedRect(QRectF(field_frame_).adjusted(1, 1, -1, -1), kCorner, kCorner);
  painter.setPen(QPen(colours.line, 1.0));
  // Words that found their place further away are led to, but not across the fields beside.
  const auto nearest = [](const QRect& place, const QPoint& to) {
    return QPoint(std::clamp(to.x(), place.left() + kFrameMargin, place.right() - kFrameMargin),
                  std::clamp(to.y(), place.top(), place.bottom()));
  };
  const QPoint at_words = nearest(words_frame_, {field_frame_.left(), field_frame_.center().y()});
  const QPoint at_field = nearest(field_frame_, at_words);
  if (at_field.x() == at_words.x()) painter.drawLine(at_field, at_words);
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
      // The page takes its note with it when it scrolls.
      if (watched != parentWidget()) PlaceWhenLaidOut();
      break;
    case QEvent::Resize:
    case QEvent::LayoutRequest:
      PlaceWhenLaidOut();
      break;
    default:
      break;
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace velmar::shell
