#include "shell/material_editors/mnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <QSet>
#include <QString>

namespace velmar::material_editors {
namespace {

bool IsLetter(QChar character) {
  const QChar lower = character.toLower();
  return lower >= u'a' && lower <= u'z';
}

/// The place of the letter for `text`, -1 when all its letters are taken.
qsizetype FreeLetter(const QString& text, const QSet<QChar>& taken) {
  qsizetype inside = -1;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (!IsLetter(text.at(i)) || taken.contains(text.at(i).toLower())) continue;
    if (i == 0 || text.at(i - 1).isSpace()) return i;
    if (inside < 0) inside = i;
  }
  return inside;
}

QString WithMnemonic(QString text, QSet<QChar>& taken) {
  const qsizetype place = FreeLetter(text, taken);
  if (place < 0 || text.contains('&')) return text;
  taken.insert(text.at(place).toLower());
  return text.insert(place, '&');
}

}  // namespace

void AssignMnemonics(QWidget& window) {
  QSet<QChar> taken;
  for (auto* button : window.findChildren<QAbstractButton*>())
    button->setText(WithMnemonic(button->text(), taken));
  for (auto* label : window.findChildren<QLabel*>()) {
    if (label->buddy() != nullptr) label->setText(WithMnemonic(label->text(), taken));
  }
}

}  // namespace velmar::material_editors
