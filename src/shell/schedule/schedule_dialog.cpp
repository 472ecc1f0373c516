#include "shell/schedule/schedule_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <utility>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 480;
constexpr int kPathRole = Qt::UserRole;

/// The formats in the order of the list.
struct Format {
  documents::ScheduleFormat format;
  const char* ending;
  const char* name;
};
constexpr std::array kFormats = {Format{documents::ScheduleFormat::kWord, ".docx", "Word (.docx)"},
                                 Format{documents::ScheduleFormat::kPdf, ".pdf", "PDF (.pdf)"},
                                 Format{documents::ScheduleFormat::kExcel, ".xlsx", "Excel (.xlsx)"}};

QPushButton* Button(const char* name, const QString& text, QWidget* parent) {
  auto* button = new QPushButton(text, parent);
  button->setObjectName(name);
  button->setAutoDefault(false);
  return button;
}

}  // namespace

ScheduleDialog::ScheduleDialog(const Speech& speech, ScheduleServices services, QWidget* parent)
    : QDialog(parent), speech_(speech), services_(std::move(services)) {
  setObjectName("Abaco");
  setWindowTitle(Text(speech.words, kScheduleMenuRow).remove(QChar(0x2026)));
  Build();
  connect(&job_, &ScheduleJob::Progressed, this, &ScheduleDialog::ShowProgress);
  connect(&job_, &ScheduleJob::Ended, this, &ScheduleDialog::End);
  resize(kWidth, kHeight);
  Follow();
}

void ScheduleDialog::Build() {
  const presentation::Words& words = speech_.words;
  auto* column = new QVBoxLayout(this);
  auto* label = new QLabel(Text(words, kScheduleListRow), this);
  list_ = new QListWidget(this);
  list_->setObjectName("Abaco_Progetti");
  list_->setAccessibleName(label->text().remove('&'));
  list_->setToolTip(Text(words, kScheduleListTipRow));
  list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  list_->setDragDropMode(QAbstractItemView::InternalMove);
  list_->setAlternatingRowColors(true);
  list_->installEventFilter(this);
  label->setBuddy(list_);
  column->addWidget(label);
  auto* lists = new QHBoxLayout;
  lists->addWidget(list_, 1);
  auto* moves = new QVBoxLayout;
  add_ = Button("Abaco_Aggiungi", Text(words, kScheduleAddRow), this);
  remove_ = Button("Abaco_Togli", Text(words, kScheduleRemoveRow), this);
  up_ = Button("Abaco_Su", Text(words, kScheduleUpRow), this);
  down_ = Button("Abaco_Giu", Text(words, kScheduleDownRow), this);
  for (QPushButton* button : {add_, remove_, up_, down_}) moves->addWidget(button);
  moves->addStretch(1);
  lists->addLayout(moves);
  column->addLayout(lists, 1);

  auto* form = new QFormLayout;
  title_ = new QLineEdit(Text(words, kScheduleTitleRow), this);
  title_->setObjectName("Abaco_Titolo");
  form->addRow(Text(words, kScheduleDocumentTitleRow), title_);
  format_ = new QComboBox(this);
  format_->setObjectName("Abaco_Formato");
  for (const Format& format : kFormats) format_->addItem(format.name);
  form->addRow(Text(words, kScheduleFormatRow), format_);
  column->addLayout(form);
  go_on_ = new QCheckBox(Text(words, kScheduleGoOnRow), this);
  go_on_->setObjectName("Abaco_Prosegui");
  column->addWidget(go_on_);

  state_ = new QLabel(this);
  state_->setObjectName("Abaco_Stato");
  state_->setTextFormat(Qt::PlainText);
  progress_ = new QProgressBar(this);
  progress_->setObjectName("Abaco_Avanzamento");
  progress_->setTextVisible(false);
  auto keeps_room = progress_->sizePolicy();
  keeps_room.setRetainSizeWhenHidden(true);
  progress_->setSizePolicy(keeps_room);
  progress_->hide();
  column->addWidget(state_);
  column->addWidget(progress_);

  auto* buttons = new QHBoxLayout;
  make_ = Button("Abaco_Crea", Text(words, kScheduleMakeRow), this);
  make_->setDefault(true);
  close_ = Button("Abaco_Chiudi", {}, this);
  buttons->addStretch(1);
  buttons->addWidget(make_);
  buttons->addWidget(close_);
  column->addLayout(buttons);

  connect(add_, &QPushButton::clicked, this, &ScheduleDialog::AddFromDisk);
  connect(remove_, &QPushButton::clicked, this, &ScheduleDialog::RemoveChosen);
  connect(up_, &QPushButton::clicked, this, [this] { Move(-1); });
  connect(down_, &QPushButton::clicked, this, [this] { Move(1); });
  connect(make_, &QPushButton::clicked, this, &ScheduleDialog::Make);
  connect(close_, &QPushButton::clicked, this, &ScheduleDialog::reject);
  connect(list_, &QListWidget::itemSelectionChanged, this, &ScheduleDialog::Follow);
}

void ScheduleDialog::Add(const QStringList& files) {
  for (const QString& file : files) {
    const QString whole = QFileInfo(file).absoluteFilePath();
    const std::vector<std::filesystem::path> known = Projects();
    if (std::ranges::count(known, std::filesystem::path(ToUtf8(whole))) > 0) continue;
    auto* item = new QListWidgetItem(QFileInfo(file).fileName(), list_);
    item->setData(kPathRole, whole);
    item->setToolTip(QDir::toNativeSeparators(whole));
    item->setFlags(item->flags() & ~Qt::ItemIsDropEnabled);
  }
  if (list_->currentRow() < 0) list_->setCurrentRow(0);
  Follow();
}

void ScheduleDialog::AddFromDisk() {
  Add(services_.choose_projects(
      {.title = Text(speech_.words, kScheduleAddRow).remove('&').remove(QChar(0x2026)),
       .filter = Text(speech_.words, kScheduleFilesRow) + " (*.drav)",
       .start = list_->count() > 0
                    ? QFileInfo(list_->item(list_->count() - 1)->data(kPathRole).toString()).absolutePath()
                    : QFileInfo(services_.propose(QStringLiteral(".docx"))).absolutePath()}));
}

void ScheduleDialog::RemoveChosen() {
  const int row = list_->currentRow();
  qDeleteAll(list_->selectedItems());
  if (list_->count() > 0)
    list_->setCurrentRow(std::clamp(row, 0, list_->count() - 1), QItemSelectionModel::ClearAndSelect);
  Follow();
}

void ScheduleDialog::Move(int by) {
  const int row = list_->currentRow();
  const int to = row + by;
  if (row < 0 || to < 0 || to >= list_->count()) return;
  list_->insertItem(to, list_->takeItem(row));
  list_->setCurrentRow(to, QItemSelectionModel::ClearAndSelect);
}

bool ScheduleDialog::eventFilter(QObject* watched, QEvent* event) {
  if (watched != list_ || event->type() != QEvent::KeyPress || job_.Running())
    return QDialog::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  const bool control = (key->modifiers() & Qt::ControlModifier) != 0;
  if (key->key() == Qt::Key_Delete) {
    RemoveChosen();
  } else if (control && (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down)) {
    Move(key->key() == Qt::Key_Up ? -1 : 1);
  } else {
    return QDialog::eventFilter(watched, event);
  }
  return true;
}

std::vector<std::filesystem::path> ScheduleDialog::Projects() const {
  std::vector<std::filesystem::path> projects;
  for (int row = 0; row < list_->count(); ++row)
    projects.emplace_back(ToUtf8(list_->item(row)->data(kPathRole).toString()));
  return projects;
}

/// Enables what can be done now.
void ScheduleDialog::Follow() {
  const bool idle = !job_.Running();
  const bool chosen = !list_->selectedItems().isEmpty();
  for (QWidget* widget : std::initializer_list<QWidget*>{list_, title_, format_, go_on_, add_})
    widget->setEnabled(idle);
  remove_->setEnabled(idle && chosen);
  for (QPushButton* button : {up_, down_}) button->setEnabled(idle && chosen && list_->count() > 1);
  make_->setEnabled(idle && list_->count() > 0);
  close_->setText(Text(speech_.words, idle ? kCloseRow : kCancelRow));
  if (!idle) return;
  progress_->hide();
  state_->setText(list_->count() == 0
                      ? Text(speech_.words, kScheduleHintRow)
                      : QString::number(list_->count()) + ' ' + Text(speech_.words, kScheduleCountRow));
}

void ScheduleDialog::Make() {
  const Format& format = kFormats.at(static_cast<std::size_t>(format_->currentIndex()));
  const QString ending = format.ending;
  const QFileInfo proposed(services_.propose(ending));
  const auto target =
      AskFileToSave(speech_,
                    {.title = Text(speech_.words, kSaveAsRow),
                     .filter = QString(format.name).section(' ', 0, 0) + " (*" + ending + ')',
                     .start = proposed.dir().filePath(title_->text().trimmed().replace('/', '-') + ending)},
                    ending);
  if (!target) return;
  target_ = *target;
  progress_->setRange(0, 0);
  progress_->show();
  job_.Start({.projects = Projects(),
              .format = format.format,
              .title = ToUtf8(title_->text().trimmed()),
              .language = services_.language,
              .go_on_outside_ranges = go_on_->isChecked()},
             services_.tools(), target_);
  Follow();
}

void ScheduleDialog::ShowProgress(int done, int steps, const QString& project) {
  progress_->setRange(0, steps);
  progress_->setValue(done);
  if (close_->isEnabled())
    state_->setText(project.isEmpty() ? Text(speech_.words, kScheduleBindingRow) : project);
}

void ScheduleDialog::End() {
  close_->setEnabled(true);
  Follow();
  if (const auto made = job_.TakeMade()) {
    services_.written(target_);
    TellMade(*made);
    return;
  }
  if (!job_.Failure()) {
    state_->setText(Text(speech_.words, kScheduleStoppedRow));
    return;
  }
  try {
    std::rethrow_exception(job_.Failure());
  } catch (const Failure& failure) {
    speech_.boxes.tell(Tone::kCritical, Text(speech_.words, failure.UserMessage()));
  } catch (const std::exception&) {
    speech_.boxes.tell(Tone::kCritical, Text(speech_.words, kFillingFailedRow));
  }
}

void ScheduleDialog::TellMade(const documents::MadeSchedule& made) {
  QString told = Text(speech_.words, kDocumentSavedRow);
  for (const Message& remark : made.remarks) told += '\n' + Text(speech_.words, remark);
  if (!made.failed.empty()) told += '\n' + Text(speech_.words, kScheduleSomeFailedRow);
  for (const documents::FailedProject& failed : made.failed)
    told += "\n• " + FromUtf8(failed.project.filename().string()) + ": " +
            Text(speech_.words, failed.reason).replace('\n', ' ');
  speech_.boxes.tell_written(told, target_);
}

void ScheduleDialog::reject() {
  if (!job_.Running()) {
    QDialog::reject();
    return;
  }
  state_->setText(Text(speech_.words, kScheduleStoppingRow));
  close_->setEnabled(false);
  job_.Cancel();
}

}  // namespace velmar::shell
