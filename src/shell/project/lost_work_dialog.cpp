#include "shell/project/lost_work_dialog.h"

#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "foundation/message_rows.h"
#include "shell/windows/button_row.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr int kMargin = 16;
constexpr int kWidthInCharacters = 96;
constexpr int kNameInCharacters = 26;
constexpr int kTimeInCharacters = 20;
constexpr int kFewestRows = 3;
constexpr int kMostRows = 8;

QString FolderOf(const LostWork& work, const presentation::Words& words) {
  if (work.project.path.empty()) return Text(words, kNeverSavedRow);
  return QDir::toNativeSeparators(FromUtf8(work.project.path.parent_path().string()));
}

}  // namespace

LostWorkDialog::LostWorkDialog(const std::vector<LostWork>& works, const presentation::Words& words,
                               QWidget* parent)
    : QDialog(parent) {
  setObjectName("LavoroNonSalvato");
  setWindowTitle(Text(words, kLostWorkRow));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(kMargin / 2);
  auto* text = new QLabel(Text(words, Message{{kRecoveryFirstRow}, {kRecoverySecondRow}}), this);
  text->setWordWrap(true);
  column->addWidget(text);
  list_ = MakeList(works, words);
  column->addWidget(list_, 1);
  auto* buttons = new ButtonRow(this);
  buttons->Add("Elimina", Text(words, kDeleteLostRow), [this] { Finish(LostWorkChoice::kDelete); });
  buttons->AddStretch();
  QPushButton* recover =
      buttons->Add("Recupera", Text(words, kRecoverRow), [this] { Finish(LostWorkChoice::kRecover); });
  recover->setDefault(true);
  buttons->Add("Dopo", Text(words, kLaterRow), [this] { reject(); });
  column->addWidget(buttons);
  resize(fontMetrics().averageCharWidth() * kWidthInCharacters, sizeHint().height());
  list_->setFocus();
}

QTreeWidget* LostWorkDialog::MakeList(const std::vector<LostWork>& works, const presentation::Words& words) {
  auto* list = new QTreeWidget(this);
  list->setObjectName("Lavori");
  list->setAccessibleName(Text(words, kLostWorkRow));
  list->setRootIsDecorated(false);
  list->setUniformRowHeights(true);
  list->setAllColumnsShowFocus(true);
  list->setTextElideMode(Qt::ElideMiddle);
  list->setHeaderLabels({Text(words, kLostNameRow), Text(words, kLostTimeRow), Text(words, kLostFolderRow)});
  for (const LostWork& work : works) {
    const QString folder = FolderOf(work, words);
    auto* item = new QTreeWidgetItem(list, {work.Name(Text(words, kNewProjectRow)), work.Time(), folder});
    item->setToolTip(2, folder);
  }
  list->setCurrentItem(list->topLevelItem(0));
  list->setColumnWidth(0, fontMetrics().averageCharWidth() * kNameInCharacters);
  list->setColumnWidth(1, fontMetrics().averageCharWidth() * kTimeInCharacters);
  const int rows = std::clamp(static_cast<int>(works.size()), kFewestRows, kMostRows);
  const int row_height = fontMetrics().height() + 8;
  list->setMinimumHeight(rows * row_height + list->header()->sizeHint().height());
  connect(list, &QTreeWidget::itemDoubleClicked, this, [this] { Finish(LostWorkChoice::kRecover); });
  return list;
}

void LostWorkDialog::Finish(LostWorkChoice choice) {
  answer_ = {choice, static_cast<std::size_t>(std::max(0, list_->indexOfTopLevelItem(list_->currentItem())))};
  accept();
}

}  // namespace velmar::shell
