#include "shell/project/project_information_dialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <functional>

#include "foundation/message_rows.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr int kNotesHeightInLines = 5;
constexpr int kWidth = 520;

using TextOf = std::function<QString()>;

TextOf AddValue(QFormLayout& form, std::size_t row, const QString& caption, const QString& value,
                QWidget* parent) {
  const QString name = ArrayName("Text1", static_cast<int>(row));
  if (row == elements::kNotesRow) {
    auto* notes = new QPlainTextEdit(value, parent);
    notes->setObjectName(name);
    notes->setAccessibleName(caption);
    notes->setTabChangesFocus(true);
    notes->setFixedHeight(notes->fontMetrics().lineSpacing() * kNotesHeightInLines);
    form.addRow(caption, notes);
    return [notes] { return notes->toPlainText(); };
  }
  auto* line = new QLineEdit(value, parent);
  line->setObjectName(name);
  line->setAccessibleName(caption);
  form.addRow(caption, line);
  return [line] { return line->text(); };
}

/// What line `row` is called. A project brings the captions of the program that wrote it, maybe in another
/// language: those stand behind the words of this one, since they are printed.
QString CaptionOf(const elements::ProjectInformationRow& line, std::size_t row,
                  const presentation::Words& words) {
  const QString own = FromUtf8(line.caption);
  const QString caption = Text(words, elements::kInformationCaptions.at(row));
  if (own.isEmpty() || own == caption) return caption;
  return row < elements::kCaptionedInformationRows ? caption + " (" + own + ')' : own;
}

}  // namespace

ProjectInformationDialog::ProjectInformationDialog(calculation::OpenCalculation& open,
                                                   const presentation::Words& words, QWidget* parent)
    : QDialog(parent) {
  setObjectName("Form11");
  setWindowTitle(Text(words, kProjectInformationRow));
  auto* column = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  const elements::ProjectInformation& information = open.Setup().information;
  std::vector<TextOf> values;
  for (std::size_t row = 0; row < information.size(); ++row) {
    const elements::ProjectInformationRow& line = information.at(row);
    values.push_back(AddValue(*form, row, CaptionOf(line, row, words), FromUtf8(line.value), this));
  }
  column->addLayout(form);
  auto* buttons = new QHBoxLayout;
  auto* ok = new QPushButton(Text(words, kOkRow), this);
  ok->setObjectName("Command1");
  ok->setDefault(true);
  auto* cancel = new QPushButton(Text(words, kCancelRow), this);
  cancel->setObjectName("Command2");
  buttons->addStretch(1);
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  column->addLayout(buttons);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(ok, &QPushButton::clicked, this, [this, &open, values] {
    elements::ProjectInformation entered = open.Setup().information;
    for (std::size_t row = 0; row < entered.size(); ++row) entered.at(row).value = ToUtf8(values.at(row)());
    // What a project is called does not touch its result.
    if (entered != open.Setup().information)
      open.EditKeepingResult([&](elements::Setup& setup) { setup.information = entered; });
    accept();
  });
  resize(kWidth, sizeHint().height());
}

}  // namespace velmar::shell
