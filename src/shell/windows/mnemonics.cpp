#include "shell/windows/mnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <QSet>

namespace velmar::shell {
namespace {

bool IsFree(QChar letter, const QSet<QChar>& taken) {
  return letter.unicode() < 0x80 && letter.isLetter() && !taken.contains(letter.toLower());
}

/// The place of the letter that stands for `text`, -1 when none is free.
int PlaceOfMnemonic(const QString& text, const QSet<QChar>& taken) {
  for (int i = 0; i < text.size(); ++i) {
    const bool begins_a_word = i == 0 || text.at(i - 1).isSpace();
    if (begins_a_word && IsFree(text.at(i), taken)) return i;
  }
  for (int i = 0; i < text.size(); ++i) {
    if (IsFree(text.at(i), taken)) return i;
  }
  return -1;
}

QString WithMnemonic(QString text, QSet<QChar>& taken) {
  text.remove(QLatin1Char('&'));
  const int place = PlaceOfMnemonic(text, taken);
  if (place < 0) return text;
  taken.insert(text.at(place).toLower());
  return text.insert(place, QLatin1Char('&'));
}

}  // namespace

void SetMnemonics(QWidget& window) {
  QSet<QChar> taken;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (auto* button = qobject_cast<QAbstractButton*>(widget); button != nullptr && !button->text().isEmpty())
      button->setText(WithMnemonic(button->text(), taken));
    if (auto* label = qobject_cast<QLabel*>(widget); label != nullptr && label->buddy() != nullptr)
      label->setText(WithMnemonic(label->text(), taken));
  }
}

}  // namespace velmar::shell
