#include "shell/windows/boxes.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>
#include <QWindow>

#include "foundation/message_rows.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

/// Texts of materials and files may hold what looks like markup.
void Show(QMessageBox& box, const QString& text) {
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
}

void Tell(const presentation::Words& words, Tone tone, const QString& text) {
  QMessageBox box(QApplication::activeWindow());
  box.setWindowTitle(kProductName);
  box.setIcon(tone == Tone::kCritical ? QMessageBox::Critical : QMessageBox::Information);
  Show(box, text);
  box.addButton(Text(words, kOkRow), QMessageBox::AcceptRole);
  box.exec();
}

void OpenWritten(const presentation::Words& words, const QString& wanted) {
  if (!QDesktopServices::openUrl(QUrl::fromLocalFile(wanted)))
    Tell(words, Tone::kCritical, Text(words, kNotOpenedRow) + '\n' + wanted);
}

// Nothing has to be answered: the box leaves the windows free, and goes as soon as one of them is worked in.
void TellWritten(const presentation::Words& words, const QString& text, const QString& file) {
  auto* box = new QMessageBox(QApplication::activeWindow());
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setWindowModality(Qt::NonModal);
  box->setWindowTitle(kProductName);
  box->setIcon(QMessageBox::Information);
  Show(*box, text + '\n' + QDir::toNativeSeparators(file));
  box->setTextInteractionFlags(Qt::TextSelectableByMouse);
  const QPushButton* open = box->addButton(Text(words, kOpenWrittenRow), QMessageBox::ActionRole);
  const QPushButton* folder = box->addButton(Text(words, kOpenFolderRow), QMessageBox::ActionRole);
  QPushButton* ok = box->addButton(Text(words, kOkRow), QMessageBox::AcceptRole);
  box->setDefaultButton(ok);
  box->setEscapeButton(ok);
  QObject::connect(open, &QPushButton::clicked, qApp, [words, file] { OpenWritten(words, file); });
  QObject::connect(folder, &QPushButton::clicked, qApp,
                   [words, file] { OpenWritten(words, QFileInfo(file).absolutePath()); });
  box->show();
  QObject::connect(qApp, &QGuiApplication::focusWindowChanged, box,
                   [box, seen = false](const QWindow* now) mutable {
                     // The window behind a file dialog may get the focus back before the box has it.
                     if (now == box->windowHandle())
                       seen = true;
                     else if (seen && now != nullptr)
                       box->close();
                   });
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
  boxes.tell = [words](Tone tone, const QString& text) { Tell(words, tone, text); };
  boxes.tell_written = [words](const QString& text, const std::filesystem::path& file) {
    TellWritten(words, text, QString::fromStdString(file.string()));
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

std::optional<std::filesystem::path> AskFileToSave(const Speech& speech, const FileQuestion& question,
                                                   const QString& ending) {
  const QString chosen = speech.boxes.choose_file_to_save(question);
  if (chosen.isEmpty()) return std::nullopt;
  if (chosen.endsWith(ending, Qt::CaseInsensitive)) return chosen.toStdString();
  std::filesystem::path file = (chosen + ending).toStdString();
  std::error_code error;
  const QString meets = Text(speech.words, kReplaceDocumentRow) + '\n' + FromUtf8(file.string());
  if (std::filesystem::exists(file, error) && !speech.boxes.ask(meets)) return std::nullopt;
  return file;
}

}  // namespace velmar::shell
