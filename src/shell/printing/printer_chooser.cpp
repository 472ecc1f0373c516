#include "shell/printing/printer_chooser.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "foundation/message_rows.h"

namespace velmar::printing {
namespace {

QString Text(const presentation::Words& words, MessageRow row) { return QString::fromStdString(words(row)); }

}  // namespace

PrinterChooser::PrinterChooser(PrinterChoice choice, presentation::Words words, QWidget* parent)
    : QDialog(parent), choice_(std::move(choice)), words_(std::move(words)), list_(new QListWidget(this)) {
  setObjectName(QStringLiteral("Dialog"));
  setWindowTitle(Text(words_, kPrinterCaptionRow));
  list_->setObjectName(QStringLiteral("List1"));
  list_->setAccessibleName(windowTitle());
  list_->addItems(choice_.printers);
  const qsizetype current = choice_.printers.indexOf(choice_.current);
  list_->setCurrentRow(static_cast<int>(current < 0 ? 0 : current));
  list_->setVisible(!choice_.printers.isEmpty());
  auto* empty = new QLabel(Text(words_, kNoPrinterRow), this);
  empty->setObjectName(QStringLiteral("no_printer"));
  empty->setWordWrap(true);
  empty->setVisible(choice_.printers.isEmpty());
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setText(Text(words_, kOkRow));
  buttons->button(QDialogButtonBox::Ok)->setEnabled(!choice_.printers.isEmpty());
  buttons->button(QDialogButtonBox::Cancel)->setText(Text(words_, kCancelRow));
  auto* column = new QVBoxLayout(this);
  column->addWidget(list_);
  column->addWidget(empty);
  column->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &PrinterChooser::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &PrinterChooser::reject);
  connect(list_, &QListWidget::itemActivated, this, &PrinterChooser::accept);
}

void PrinterChooser::accept() {
  const QListWidgetItem* chosen = list_->currentItem();
  if (!chosen) return;
  if (!choice_.select(chosen->text())) {
    choice_.tell_failure(Text(words_, kCannotPrintRow));
    return;
  }
  QDialog::accept();
}

}  // namespace velmar::printing
