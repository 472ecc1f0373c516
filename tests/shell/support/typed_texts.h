#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QStringList>
#include <QWidget>

namespace velmar::shell {

/// What a hand may type where a number is due.
inline const QStringList kNumbers = {"0",   "1",  "8",   "12,5", "12.5",  "250", "7",  "1E3", "1e-3",
                                     "100", "40", "3,6", "2",    "0,001", "60",  "55", "",    "1000000"};
/// What it had better not type.
inline const QStringList kGarbage = {
    "-",    ",",     "1E", "1E400", "E5", "--",       "1,,2", "abc",  "9999999999999999", "nan", "inf",
    "0x10", "è€ß日", "\t", " ",     "'",  "<b>3</b>", "-5",   "1E-9", ",5E2,3",           "50 ", "1 000,5"};

/// Any character, also those that no key of a test keyboard has.
inline void SendText(QWidget* widget, const QString& text) {
  for (const QChar letter : text) {
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
    QApplication::sendEvent(widget, &press);
  }
}

}  // namespace velmar::shell
