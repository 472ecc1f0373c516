#include "shell/materials/material_list_window.h"

#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QVBoxLayout>
#include <utility>

#include "foundation/message_rows.h"
#include "presentation/texts/words.h"
#include "shell/fields/search_field.h"
#include "shell/materials/material_texts.h"
#include "shell/windows/button_row.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using elements::MaterialFamily;

constexpr const char* kMemoryName = "lista-materiali";
constexpr const char* kAllColumnsKey = "lista-materiali/tutte-le-colonne";

/// `Option1` in the order of its buttons.
struct FamilyOption {
  MaterialFamily family{};
  MessageRow caption{};
};
constexpr std::array kOptions = {
    FamilyOption{MaterialFamily::kStructural, TitleOf(MaterialFamily::kStructural)},
    FamilyOption{MaterialFamily::kResilient, TitleOf(MaterialFamily::kResilient)},
    FamilyOption{MaterialFamily::kFibrous, kCavityRow}};

QString ColumnsKey(MaterialFamily family) {
  return QStringLiteral("lista-materiali/colonne-%1").arg(static_cast<int>(family));
}

/// The keys that move through the grid while the search has the focus.
bool Moves(int key) {
  return key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_PageDown || key == Qt::Key_PageUp;
}

}  // namespace

MaterialListWindow::MaterialListWindow(WindowTools tools, MaterialSource source,
                                       std::optional<MaterialPick> pick, UsedIn used, QWidget* parent)
    : QDialog(parent),
      tools_(std::move(tools)),
      source_(std::move(source)),
      pick_(std::move(pick)),
      used_(std::move(used)),
      model_(tools_),
      shown_(model_) {
  setObjectName(QStringLiteral("Form2"));
  auto* column = new QVBoxLayout(this);
  column->addWidget(MakeHead());
  MakeGrid();
  column->addWidget(grid_, 1);
  column->addWidget(MakeSelected());
  column->addWidget(MakeButtons());
  const QFontMetrics metrics = fontMetrics();
  if (!RestoreSizes(tools_.memory, {QLatin1String(kMemoryName), this, nullptr, nullptr}))
    resize(metrics.averageCharWidth() * 185, metrics.height() * 32);
  ChooseFamily(pick_ ? pick_->family : MaterialFamily::kStructural);
  if (pick_) grid_->SelectName(pick_->shown);
  search_->setFocus();
}

MaterialListWindow::~MaterialListWindow() {
  RememberColumns();
  SaveSizes(tools_.memory, {QLatin1String(kMemoryName), this, nullptr, nullptr});
}

QWidget* MaterialListWindow::MakeHead() {
  auto* head = new QWidget(this);
  auto* row = new QHBoxLayout(head);
  row->setContentsMargins(0, 0, 0, 0);
  for (std::size_t i = 0; i < kOptions.size(); ++i) {
    const MaterialFamily family = kOptions.at(i).family;
    auto* option = new QRadioButton(tools_.Text(kOptions.at(i).caption), head);
    option->setObjectName(QStringLiteral("Option1_%1").arg(i));
    option->setToolTip(tools_.Text(TitleOf(family)));
    option->setChecked(i == 0);
    option->setVisible(!pick_);
    connect(option, &QRadioButton::clicked, this, [this, family] { ChooseFamily(family); });
    row->addWidget(option);
    families_.at(i) = option;
  }
  if (!pick_) row->addStretch(1);
  search_ = new SearchField(QStringLiteral("TextCerca"), tools_.Text(kMaterialSearchRow), head);
  search_->installEventFilter(this);
  connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) { SearchFor(text); });
  connect(search_, &SearchField::Entered, this, [this] {
    if (grid_->SelectedName().empty()) {
      search_->SayNoHit(tools_.words);
    } else if (!pick_) {
      grid_->setFocus();
    }
  });
  row->addWidget(search_, 2);
  return head;
}

void MaterialListWindow::MakeGrid() {
  grid_ = new MaterialGrid(model_, shown_, this);
  connect(grid_, &MaterialGrid::Chosen, this, [this] {
    if (pick_) {
      Take();
    } else {
      Edit(grid_->SelectedName());
    }
  });
  connect(grid_, &MaterialGrid::RemoveWanted, this, &MaterialListWindow::Delete);
  connect(grid_, &MaterialGrid::Typed, this, [this](QKeyEvent* event) {
    search_->setFocus();
    QApplication::sendEvent(search_, event);
  });
  connect(grid_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] { ShowSelected(); });
}

QWidget* MaterialListWindow::MakeSelected() {
  auto* bar = new QWidget(this);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  auto* caption = new QLabel(tools_.Text(kMaterialNameRow), bar);
  name_ = new QLineEdit(bar);
  name_->setObjectName(QStringLiteral("Text1"));
  name_->setReadOnly(true);
  name_->setAccessibleName(tools_.Text(kMaterialNameRow));
  all_columns_ = new QCheckBox(tools_.Text(kAllColumnsRow), bar);
  all_columns_->setObjectName(QStringLiteral("CheckColonne"));
  if (tools_.memory != nullptr)
    all_columns_->setChecked(tools_.memory->value(QLatin1String(kAllColumnsKey)).toBool());
  connect(all_columns_, &QCheckBox::toggled, this, [this](bool all) { grid_->ShowColumns(all); });
  use_ = new QLabel(bar);
  use_->setObjectName(QStringLiteral("LabelUso"));
  row->addWidget(caption);
  row->addWidget(name_, 1);
  row->addWidget(use_);
  row->addWidget(all_columns_);
  return bar;
}

QWidget* MaterialListWindow::MakeButtons() {
  auto* bar = new ButtonRow(this);
  const auto add = [&](const char* name, MessageRow text, std::function<void()> action) {
    return bar->Add(name, tools_.Text(text), std::move(action));
  };
  new_ = add("Command3", kNewMaterialRow, [this] { Edit({}); });
  new_->setEnabled(static_cast<bool>(source_.edit));
  edit_ = add("CommandModifica", kEditMaterialRow, [this] { Edit(grid_->SelectedName()); });
  delete_ = add("Command4", kDeleteMaterialRow, [this] { Delete(); });
  undo_ = add("CommandAnnullaElimina", kUndoDeleteRow, [this] { UndoDelete(); });
  undo_->setToolTip(tools_.Text(kMaterialDeletedUndoTipRow));
  undo_->setVisible(static_cast<bool>(source_.add));
  undo_->setEnabled(false);
  where_ = add("CommandUso", kWhereUsedRow, [this] { ShowProjects(); });
  where_->setToolTip(tools_.Text(kWhereUsedTipRow));
  where_->hide();
  bar->AddStretch();
  add("Aggiorna", kRefreshRow, [this] { RefreshAsAsked(); })->setToolTip(tools_.Text(kRefreshTipRow));
  take_ = add("CmdSeleziona", kSelectMaterialRow, [this] { Take(); });
  take_->setVisible(pick_.has_value());
  take_->setDefault(pick_.has_value());
  add("Chiudi", kCloseRow, [this] { reject(); });
  return bar;
}

void MaterialListWindow::ChooseFamily(MaterialFamily family) {
  RememberColumns();
  family_ = family;
  const QString title = tools_.Text(TitleOf(family));
  setWindowTitle(tools_.Text(kMaterialTreeCaptionRow) + QStringLiteral(" - ") + title);
  grid_->setAccessibleName(title);
  model_.Fill(family, {});
  Refresh();
  const QByteArray widths =
      tools_.memory != nullptr ? tools_.memory->value(ColumnsKey(family)).toByteArray() : QByteArray();
  grid_->BeginTable(widths, all_columns_->isChecked());
}

void MaterialListWindow::RememberColumns() const {
  if (tools_.memory == nullptr || model_.columnCount() == 0) return;
  tools_.memory->setValue(ColumnsKey(family_), grid_->Widths());
  tools_.memory->setValue(QLatin1String(kAllColumnsKey), all_columns_->isChecked());
}

bool MaterialListWindow::Refresh() {
  const std::string before = grid_->SelectedName();
  const bool read = tools_.Try([&] { model_.Fill(family_, source_.rows(family_)); });
  if (read && !grid_->SelectName(before)) grid_->SelectRow(0);
  ShowSelected();
  return read;
}

void MaterialListWindow::SearchFor(const QString& text) {
  const std::string before = grid_->SelectedName();
  shown_.Search(text);
  if (!grid_->SelectBest(text) && (before.empty() || grid_->SelectedName() != before)) grid_->SelectRow(0);
  grid_->scrollTo(grid_->currentIndex());
  ShowSelected();
}

void MaterialListWindow::ShowSelected() {
  const std::string name = grid_->SelectedName();
  name_->setText(FromUtf8(name));
  name_->setCursorPosition(0);
  edit_->setEnabled(!name.empty() && source_.edit);
  delete_->setEnabled(!name.empty());
  where_->setEnabled(!name.empty());
  ShowUse(name);
  take_->setEnabled(!name.empty());
}

bool MaterialListWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == search_ && event->type() == QEvent::KeyPress &&
      Moves(static_cast<QKeyEvent*>(event)->key())) {
    QApplication::sendEvent(grid_, event);
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

void MaterialListWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F5) {
    RefreshAsAsked();
  } else if (event->matches(QKeySequence::Find)) {
    search_->setFocus();
    search_->selectAll();
  } else {
    QDialog::keyPressEvent(event);
  }
}

void MaterialListWindow::RefreshAsAsked() {
  if (Refresh()) emit Refreshed();
}

void MaterialListWindow::Take() {
  const std::string name = grid_->SelectedName();
  if (!pick_ || name.empty()) return;
  bool there = false;
  if (!tools_.Try([&] { there = source_.find(family_, name).has_value(); })) return;
  if (!there) {  // deleted by another program since the list was read
    tools_.Tell(tools_.Text(kMaterialGoneRow));
    Refresh();
    return;
  }
  pick_->take(name);
  accept();
}

void MaterialListWindow::Edit(const std::string& name) {
  if (!source_.edit) return;
  std::optional<MaterialChange> change;
  tools_.Try([&] { change = source_.edit(this, family_, name); });
  if (!change) return;
  // What was searched for may not occur in the row that was just stored.
  Refresh();
  if (!grid_->SelectName(change->name)) {
    search_->clear();
    grid_->SelectName(change->name);
  }
  emit Changed(*change);
}

void MaterialListWindow::Delete() {
  const std::string name = grid_->SelectedName();
  if (name.empty()) return;
  const QString question =
      tools_.Text(kDeleteMaterialQuestionRow) + QStringLiteral(" \"%1\"?").arg(FromUtf8(name));
  if (!tools_.Ask(question)) return;
  const int row = grid_->SelectedRow();
  std::optional<MaterialCells> cells;
  const bool removed = tools_.Try([&] {
    cells = source_.find(family_, name);
    source_.remove(family_, name);
  });
  if (!removed) return;
  if (cells) deleted_ = Deleted{family_, name, *std::move(cells)};
  undo_->setEnabled(deleted_.has_value());
  Refresh();
  grid_->SelectRow(row);
  emit Removed(family_, name);
}

void MaterialListWindow::UndoDelete() {
  if (!deleted_ || !source_.add) return;
  std::optional<Message> refusal;
  if (!tools_.Try([&] { refusal = source_.add(deleted_->family, deleted_->cells); })) return;
  if (refusal) {
    tools_.Tell(tools_.Text(*refusal));
    return;
  }
  const Deleted back = *std::exchange(deleted_, std::nullopt);
  undo_->setEnabled(false);
  if (back.family == family_) {
    Refresh();
    grid_->SelectName(back.name);
  }
  emit Changed({back.family, {}, back.name, {}});
}

void MaterialListWindow::LookForProjectsBy(ProjectSearch search) {
  projects_ = std::move(search);
  where_->setVisible(static_cast<bool>(projects_));
}

void MaterialListWindow::ShowProjects() {
  const std::string name = grid_->SelectedName();
  if (name.empty() || !projects_) return;
  auto* window = new MaterialUseWindow(tools_, name, projects_(family_, name), this);
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setWindowModality(Qt::WindowModal);
  window->show();
}

void MaterialListWindow::ShowUse(const std::string& name) {
  QStringList numbers;
  if (used_ && !name.empty()) {
    for (const int number : used_(family_, name)) numbers << QString::number(number);
  }
  use_->setText(numbers.isEmpty() ? QString()
                                  : tools_.Text(kUsedInLayersRow) + ' ' + numbers.join(QStringLiteral(", ")));
}

}  // namespace velmar::shell
