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
  // What acts comes first: a button keeps the first letter of its words.
  for (auto* button : window.findChildren<QAbstractButton*>())
    button->setText(WithMnemonic(button->text(), taken));
  for (auto* label : window.findChildren<QLabel*>()) {
    if (label->buddy() != nullptr) label->setText(WithMnemonic(label->text(), taken));
  }
}

}  // namespace velmar::shell
