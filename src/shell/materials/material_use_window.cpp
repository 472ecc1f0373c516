#include "shell/materials/material_use_window.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <chrono>

#include "foundation/message_rows.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr std::chrono::milliseconds kLookEvery{50};
constexpr int kUnreadableLines = 4;

QString Shown(const std::filesystem::path& path) { return FromUtf8(path.string()); }

/// "strati 1, 3 · varianti A, B"
QString WhereIn(const storage::ProjectUse& use, const WindowTools& tools) {
  QStringList numbers;
  for (const int number : use.layers) numbers << QString::number(number);
  QStringList variants;
  for (const std::string& variant : use.variants) variants << FromUtf8(variant);
  QStringList places;
  if (!numbers.isEmpty()) places << tools.Text(kUseLayersRow) + ' ' + numbers.join(QStringLiteral(", "));
  if (!variants.isEmpty()) places << tools.Text(kUseVariantsRow) + ' ' + variants.join(QStringLiteral(", "));
  return places.join(QStringLiteral(" · "));
}

}  // namespace

MaterialUseWindow::MaterialUseWindow(const WindowTools& tools, const std::string& name, const Search& search,
                                     QWidget* parent)
    : QDialog(parent), tools_(tools) {
  setObjectName(QStringLiteral("UsoMateriale"));
  setWindowTitle(tools.Text(kWhereUsedTitleRow) + QStringLiteral(" - ") + FromUtf8(name));
  said_ = new QLabel(tools.Text(kUseSearchingRow), this);
  said_->setObjectName(QStringLiteral("UsoEsito"));
  said_->setWordWrap(true);
  said_->setTextFormat(Qt::PlainText);
  list_ = new QTreeWidget(this);
  list_->setObjectName(QStringLiteral("UsoProgetti"));
  list_->setAccessibleName(tools.Text(kWhereUsedTitleRow));
  list_->setHeaderLabels({tools.Text(kUseProjectRow), tools.Text(kUseWhereRow), tools.Text(kUseFolderRow)});
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setTextElideMode(Qt::ElideRight);
  const int character = fontMetrics().averageCharWidth();
  list_->setColumnWidth(0, character * 36);
  list_->setColumnWidth(1, character * 30);
  unreadable_ = new QPlainTextEdit(this);
  unreadable_->setObjectName(QStringLiteral("UsoNonLetti"));
  unreadable_->setAccessibleName(tools.Text(kUseUnreadableRow));
  unreadable_->setReadOnly(true);
  unreadable_->setTabChangesFocus(true);
  unreadable_->setFixedHeight(fontMetrics().height() * (kUnreadableLines + 1));
  unreadable_->hide();
  auto* buttons = new QDialogButtonBox(this);
  QPushButton* close = buttons->addButton(tools.Text(kCloseRow), QDialogButtonBox::RejectRole);
  close->setObjectName(QStringLiteral("Chiudi"));
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* column = new QVBoxLayout(this);
  column->addWidget(said_);
  column->addWidget(list_, 1);
  column->addWidget(unreadable_);
  column->addWidget(buttons);
  resize(character * 110, fontMetrics().height() * 24);
  found_ = std::async(std::launch::async, [this, search] { return search(stop_); });
  connect(&look_, &QTimer::timeout, this, [this] {
    if (found_.wait_for(std::chrono::seconds(0)) != std::future_status::ready) return;
    look_.stop();
    Show(found_.get());
  });
  look_.start(kLookEvery);
}

// The future waits for the search, which ends at its next file.
MaterialUseWindow::~MaterialUseWindow() { stop_ = true; }

void MaterialUseWindow::Show(const storage::MaterialUses& uses) {
  for (const storage::ProjectUse& use : uses.projects) {
    auto* item = new QTreeWidgetItem(
        list_, {FromUtf8(use.file.stem().string()), WhereIn(use, tools_), Shown(use.file.parent_path())});
    for (int column = 0; column < list_->columnCount(); ++column)
      item->setToolTip(column, item->text(column));
    item->setToolTip(0, Shown(use.file));
  }
  if (!uses.projects.empty()) list_->setCurrentItem(list_->topLevelItem(0));
  QStringList lines = {tools_.Text(kUseFoundRow) + ' ' + QString::number(uses.projects.size()) + " · " +
                       tools_.Text(kUseLookedAtRow) + ' ' + QString::number(uses.looked_at)};
  if (uses.is_cut) lines << tools_.Text(kUseCutRow);
  if (!uses.unreadable.empty()) {
    lines << tools_.Text(kUseUnreadableRow) + ' ' + QString::number(uses.unreadable.size());
    QStringList paths;
    for (const std::filesystem::path& path : uses.unreadable) paths << Shown(path);
    unreadable_->setPlainText(paths.join('\n'));
    unreadable_->show();
  }
  said_->setText(lines.join('\n'));
}

}  // namespace velmar::shell
