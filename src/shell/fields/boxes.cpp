#include "shell/fields/boxes.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

#include "foundation/message_rows.h"
#include "shell/fields/phrases.h"

namespace velmar::shell {
namespace {

/// Texts of materials and files may hold what looks like markup.
void Show(QMessageBox& box, const QString& text) {
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
}

}  // namespace

Boxes ScreenBoxes(const presentation::Words& words) {
  Boxes boxes;
  boxes.ask = [words](const QString& question) {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(kProductName);
    box.setIcon(QMessageBox::Warning);
    Show(box, question);
    const QPushButton* yes = box.addButton(Text(words, kYesRow), QMessageBox::YesRole);
    QPushButton* no = box.addButton(Text(words, kNoRow), QMessageBox::NoRole);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes;
  };
  boxes.ask_or_cancel = [words](const QString& question) -> std::optional<bool> {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(kProductName);
    box.setIcon(QMessageBox::Warning);
    Show(box, question);
    const QPushButton* yes = box.addButton(Text(words, kYesRow), QMessageBox::YesRole);
    const QPushButton* no = box.addButton(Text(words, kNoRow), QMessageBox::NoRole);
    QPushButton* cancel = box.addButton(Text(words, kCancelRow), QMessageBox::RejectRole);
    box.setEscapeButton(cancel);
    box.exec();
    if (box.clickedButton() == yes) return true;
    if (box.clickedButton() == no) return false;
    return std::nullopt;
  };
  boxes.tell = [words](Tone tone, const QString& text) {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(kProductName);
    box.setIcon(tone == Tone::kCritical ? QMessageBox::Critical : QMessageBox::Information);
    Show(box, text);
    box.addButton(Text(words, kOkRow), QMessageBox::AcceptRole);
    box.exec();
  };
  boxes.choose_file_to_open = [](const FileQuestion& question) {
    return QFileDialog::getOpenFileName(QApplication::activeWindow(), question.title, question.start,
                                        question.filter);
  };
  boxes.choose_file_to_save = [](const FileQuestion& question) {
    return QFileDialog::getSaveFileName(QApplication::activeWindow(), question.title, question.start,
                                        question.filter);
  };
  boxes.ask_name = [words](const NameQuestion& question) {
    QInputDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(question.title);
    dialog.setLabelText(question.prompt);
    dialog.setTextValue(question.proposed);
    dialog.setOkButtonText(Text(words, kOkRow));
    dialog.setCancelButtonText(Text(words, kCancelRow));
    return dialog.exec() == QDialog::Accepted ? dialog.textValue() : QString();
  };
  return boxes;
}

}  // namespace velmar::shell
