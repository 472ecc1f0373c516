#include "shell/results/results_table_window.h"

#include <QClipboard>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeySequence>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "acoustics/bands.h"
#include "foundation/message_rows.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr int kRowPadding = 4;

QTableWidgetItem* Cell(const std::string& text, bool strong) {
  auto* item = new QTableWidgetItem(FromUtf8(text));
  QFont letters = item->font();
  letters.setBold(strong);
  item->setFont(letters);
  item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  return item;
}

}  // namespace

ResultsTableWindow::ResultsTableWindow(const presentation::ResultsTable& table,
                                       const presentation::Words& words, QWidget* parent)
    : QDialog(parent), table_(table) {
  setObjectName("Form4");
  setWindowTitle(Text(words, kResultsTableRow));
  setAttribute(Qt::WA_DeleteOnClose);
  auto* column = new QVBoxLayout(this);
  auto* frame = new QGroupBox(Text(words, kSpectrumRow), this);
  frame->setObjectName("Frame1");
  auto* inner = new QVBoxLayout(frame);
  view_ = new QTableWidget(frame);
  view_->setObjectName("Tabella");
  view_->setAccessibleName(frame->title());
  FillTable();
  setFocusProxy(view_);
  inner->addWidget(view_);
  column->addWidget(frame, 1);

  auto* line = new QHBoxLayout;
  copy_ = new QPushButton(Text(words, kCopyDataRow), this);
  copy_->setObjectName("Command1_1");
  copy_->setShortcut(QKeySequence::Copy);
  connect(copy_, &QPushButton::clicked, this, [this] {
    QGuiApplication::clipboard()->setText(FromUtf8(presentation::ClipboardText(table_)));
    copy_->setEnabled(false);
  });
  auto* close_button = new QPushButton(Text(words, kCloseRow), this);
  close_button->setObjectName("Command1_0");
  close_button->setDefault(true);
  connect(close_button, &QPushButton::clicked, this, &QDialog::close);
  line->addWidget(copy_);
  line->addStretch(1);
  line->addWidget(close_button);
  column->addLayout(line);
  resize(kPreferredWidth, 560);
}

void ResultsTableWindow::Show(const presentation::ResultsTable& table) {
  if (table.rows == table_.rows) return;
  table_ = table;
  FillTable();
  copy_->setEnabled(true);
}

void ResultsTableWindow::FillTable() {
  view_->setColumnCount(2);
  view_->setRowCount(static_cast<int>(table_.rows.size()));
  view_->setHorizontalHeaderLabels({FromUtf8(table_.frequency_heading), FromUtf8(table_.value_heading)});
  view_->verticalHeader()->hide();
  view_->verticalHeader()->setMinimumSectionSize(0);
  view_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowPadding);
  view_->setAlternatingRowColors(true);
  view_->setShowGrid(false);
  view_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  for (int i = 0; i < view_->rowCount(); ++i) {
    const presentation::ResultsTableRow& row = table_.rows.at(static_cast<std::size_t>(i));
    const bool rating = i >= static_cast<int>(acoustics::kBandCount);
    view_->setItem(i, 0, Cell(row.title, rating));
    view_->setItem(i, 1, Cell(row.value, rating));
    view_->setRowHidden(i, !row.visible);
  }
}

}  // namespace velmar::shell
