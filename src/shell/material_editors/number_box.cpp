#include "shell/material_editors/number_box.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QTimer>
#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "foundation/decimal.h"
#include "shell/fields/key_filters.h"
#include "shell/windows/phrases.h"
#include "shell/windows/window_tools.h"

namespace velmar::material_editors {
namespace {

constexpr QChar kDecimalSign{u','};
constexpr std::size_t kLongestShown = 9;
constexpr int kShownDigits = 7;
constexpr int kWidthInDigits = 11;

std::string Rounded(const std::string& number) {
  const std::optional<double> value = ParseDecimal(number);
  if (!value || number.size() <= kLongestShown) return number;
  std::array<char, 32> text{};
  const auto written =
      std::to_chars(text.data(), text.data() + text.size(), *value, std::chars_format::general, kShownDigits);
  return FormatShortest(ParseDecimal({text.data(), written.ptr}).value_or(*value));
}

bool IsText(const QKeyEvent& event) {
  const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  return !command && event.text().size() == 1 && event.text().at(0).isPrint();
}

/// Whether focus moved to another control, not to another window or a menu of this one.
bool MovesOn(const QFocusEvent& event) {
  return event.reason() != Qt::PopupFocusReason && event.reason() != Qt::ActiveWindowFocusReason;
}

}  // namespace

NumberBox::NumberBox(const QString& object_name, QWidget* parent) : QLineEdit(parent) {
  setObjectName(object_name);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setFixedWidth(fontMetrics().horizontalAdvance('0') * kWidthInDigits + fontMetrics().height());
  connect(this, &QLineEdit::textEdited, this, [this] {
    exact_.clear();
    edited_ = true;
  });
}

void NumberBox::Show(const std::string& text) {
  exact_.clear();
  setText(shell::FromUtf8(text));
}

void NumberBox::ShowStored(const std::string& number) {
  std::string shown = Rounded(number);
  std::ranges::replace(shown, '.', ',');
  Show(shown);
  if (shown.size() != number.size()) exact_ = number;
}

std::string NumberBox::Number() const { return exact_.empty() ? shell::ToUtf8(text().trimmed()) : exact_; }

void NumberBox::Fill(const std::string& result, bool replace) {
  const std::string now = Number();
  if (result != now && (replace || now.empty())) Show(result);
}

void NumberBox::Leave() { emit Left(std::exchange(edited_, false)); }

void NumberBox::keyPressEvent(QKeyEvent* event) {
  if (!IsText(*event)) {
    QLineEdit::keyPressEvent(event);
    return;
  }
  const QChar typed = event->text().at(0) == u'.' ? kDecimalSign : event->text().at(0);
  const shell::FieldState field{text(), hasSelectedText() ? selectionStart() : cursorPosition(),
                                static_cast<int>(selectedText().size())};
  const QChar passed = shell::NumericKeyFilter(typed, field, true, kDecimalSign);
  if (!passed.isNull()) insert(QString(passed));
  event->accept();
}

void NumberBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (!MovesOn(*event)) return;
  selectAll();
  // The press of the mouse that brought the focus puts the caret afterwards.
  if (event->reason() == Qt::MouseFocusReason) QTimer::singleShot(0, this, &QLineEdit::selectAll);
}

void NumberBox::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (MovesOn(*event)) Leave();
}

}  // namespace velmar::material_editors
