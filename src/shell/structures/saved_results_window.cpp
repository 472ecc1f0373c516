#include "shell/structures/saved_results_window.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "foundation/message_rows.h"
#include "shell/fields/search_field.h"
#include "shell/structures/copied_table.h"
#include "shell/windows/button_row.h"
#include "shell/windows/mnemonics.h"
#include "shell/windows/phrases.h"

namespace velmar::structures {
namespace {

constexpr const char* kMemoryName = "database-risultati";
constexpr int kNameColumnCharacters = 34;
constexpr int kRatingColumnCharacters = 12;

// Columns of the grid.
constexpr int kName = 0;
constexpr int kRating = 1;
constexpr int kDescription = 2;

shell::RememberedSizes SizesOf(QWidget* window, QTableView* grid) {
  return {QLatin1String(kMemoryName), window, grid->horizontalHeader(), nullptr};
}

}  // namespace

SavedResultsWindow::SavedResultsWindow(shell::WindowTools tools, ResultSource source, Purpose purpose,
                                       QWidget* parent)
    : QDialog(parent),
      tools_(std::move(tools)),
      source_(std::move(source)),
      purpose_(purpose),
      model_({tools_.Text(kNameHeadingRow), QString(), tools_.Text(kDescriptionRow)}),
      shown_(model_) {
  setObjectName(QStringLiteral("Form7"));
  setWindowTitle(tools_.Text(kResultsDatabaseRow));
  auto* column = new QVBoxLayout(this);
  column->addWidget(MakeKinds());
  column->addWidget(MakeGrid(), 1);
  column->addWidget(MakeDetails());
  column->addWidget(MakeButtons());
  const QFontMetrics metrics = fontMetrics();
  if (!shell::RestoreSizes(tools_.memory, SizesOf(this, grid_)))
    resize(metrics.averageCharWidth() * 130, metrics.height() * 34);
  AddKeys();
  shell::SetMnemonics(*this);
  Refresh();
  search_->setFocus();
}

SavedResultsWindow::~SavedResultsWindow() { shell::SaveSizes(tools_.memory, SizesOf(this, grid_)); }

QWidget* SavedResultsWindow::MakeKinds() {
  auto* bar = new QWidget(this);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  airborne_ = new QRadioButton(tools_.Text(kAirborneResultsRow), bar);
  airborne_->setObjectName(QStringLiteral("Option1_0"));
  impact_ = new QRadioButton(tools_.Text(kImpactResultsRow), bar);
  impact_->setObjectName(QStringLiteral("Option1_1"));
  lining_ = new QRadioButton(tools_.Text(kLiningResultsRow), bar);
  lining_->setObjectName(QStringLiteral("Option1_2"));
  airborne_->setChecked(true);
  search_ = new shell::SearchField(QStringLiteral("TextCerca"), tools_.Text(kStructureSearchRow), bar);
  row->addWidget(airborne_);
  row->addWidget(impact_);
  row->addWidget(lining_);
  row->addStretch(1);
  row->addWidget(search_, 2);
  for (const QRadioButton* kind : {airborne_, impact_, lining_}) {
    connect(kind, &QRadioButton::toggled, this, [this](bool chosen) {
      if (chosen) Refresh();
    });
  }
  connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) {
    const bool any = !SelectedName().empty();
    shown_.Search(text);
    if (!text.trimmed().isEmpty()) {
      SelectRow(shown_.BestHit(text, kName));
    } else if (!any) {
      SelectRow(0);
    }
  });
  connect(search_, &shell::SearchField::Entered, this, [this] {
    if (SelectedName().empty()) {
      search_->SayNoHit(tools_.words);
    } else if (purpose_ != Purpose::kTake) {
      grid_->setFocus();
    }
  });
  return bar;
}

QWidget* SavedResultsWindow::MakeGrid() {
  grid_ = new QTableView(this);
  grid_->setObjectName(QStringLiteral("DBGrid1"));
  grid_->setAccessibleName(tools_.Text(kResultsDatabaseRow));
  grid_->setModel(&shown_);
  grid_->setSelectionBehavior(QAbstractItemView::SelectRows);
  grid_->setSelectionMode(QAbstractItemView::SingleSelection);
  grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grid_->setTabKeyNavigation(false);
  grid_->setWordWrap(false);
  grid_->setSortingEnabled(true);
  grid_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  grid_->horizontalHeader()->setStretchLastSection(true);
  grid_->horizontalHeader()->setHighlightSections(false);
  grid_->setColumnWidth(kName, fontMetrics().averageCharWidth() * kNameColumnCharacters);
  grid_->setColumnWidth(kRating, fontMetrics().averageCharWidth() * kRatingColumnCharacters);
  grid_->verticalHeader()->hide();
  grid_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  connect(grid_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] { ShowSelected(); });
  connect(grid_, &QTableView::doubleClicked, this, [this] { Take(); });
  return grid_;
}

QWidget* SavedResultsWindow::MakeDetails() {
  auto* details = new QWidget(this);
  auto* column = new QVBoxLayout(details);
  column->setContentsMargins(0, 0, 0, 0);
  name_ = new QLineEdit(details);
  name_->setObjectName(QStringLiteral("Text2"));
  name_->setReadOnly(true);
  name_->setAccessibleName(tools_.Text(kNameHeadingRow));
  description_ = new QPlainTextEdit(details);
  description_->setObjectName(QStringLiteral("Text1"));
  description_->setReadOnly(true);
  description_->setTabChangesFocus(true);
  description_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  description_->setAccessibleName(tools_.Text(kDescriptionRow));
  description_->setFixedHeight(fontMetrics().height() * 5);
  column->addWidget(name_);
  column->addWidget(description_);
  messages_ = new QLabel(details);
  messages_->setObjectName(QStringLiteral("Messaggi"));
  messages_->setWordWrap(true);
  messages_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  messages_->setAccessibleName(tools_.Text(kMessagesTitleRow));
  messages_->hide();
  column->addWidget(messages_);
  return details;
}

QWidget* SavedResultsWindow::MakeButtons() {
  auto* bar = new shell::ButtonRow(this);
  const auto add = [&](const char* name, MessageRow text, std::function<void()> action) {
    return bar->Add(name, tools_.Text(text), std::move(action));
  };
  delete_ = add("Elimina", kDeleteResultRow, [this] { Delete(); });
  copy_ = add("Copia", kCopyRow, [this] { Copy(); });
  bar->AddStretch();
  take_ = add("Seleziona", kSelectStructureRow, [this] { Take(); });
  take_->setVisible(purpose_ == Purpose::kTake);
  take_->setDefault(purpose_ == Purpose::kTake);
  add("Chiudi", kCloseRow, [this] { reject(); });
  return bar;
}

void SavedResultsWindow::AddKeys() {
  connect(new QShortcut(QKeySequence::Refresh, this), &QShortcut::activated, this, [this] { Refresh(); });
  // Only in the grid: in a field these keys edit or copy its text.
  auto* remove = new QShortcut(QKeySequence::Delete, grid_);
  remove->setContext(Qt::WidgetShortcut);
  connect(remove, &QShortcut::activated, this, [this] { Delete(); });
  auto* copy = new QShortcut(QKeySequence::Copy, grid_);
  copy->setContext(Qt::WidgetShortcut);
  connect(copy, &QShortcut::activated, this, [this] { Copy(); });
}

ResultKind SavedResultsWindow::Kind() const {
  if (lining_->isChecked()) return ResultKind::kLining;
  return impact_->isChecked() ? ResultKind::kImpact : ResultKind::kAirborne;
}

std::string SavedResultsWindow::SelectedName() const {
  const QModelIndex current = grid_->currentIndex();
  return current.isValid() ? shell::ToUtf8(current.siblingAtColumn(0).data().toString()) : std::string();
}

void SavedResultsWindow::SelectRow(int row) {
  const int last = shown_.rowCount() - 1;
  grid_->setCurrentIndex(shown_.index(std::min(row, last), 0));
  ShowSelected();
}

void SavedResultsWindow::Refresh() {
  const QString before = shell::FromUtf8(SelectedName());
  std::vector<QStringList> rows;
  tools_.Try([&] {
    for (const ResultEntry& entry : source_.list(Kind()))
      rows.push_back({shell::FromUtf8(entry.name), shell::FromUtf8(calculation::BoxText(entry.rating_db)),
                      shell::FromUtf8(entry.description)});
  });
  constexpr std::array kRatings = {"Rw (dB)", "Ln,w (dB)", "ΔRw (dB)"};
  model_.Name(kRating, QString::fromUtf8(kRatings.at(static_cast<std::size_t>(Kind()))));
  model_.Fill(std::move(rows));
  const QModelIndexList again =
      shown_.match(shown_.index(0, 0), Qt::DisplayRole, before, 1, Qt::MatchExactly | Qt::MatchCaseSensitive);
  SelectRow(again.isEmpty() || before.isEmpty() ? 0 : again.first().row());
}

void SavedResultsWindow::ShowSelected() {
  const QModelIndex current = grid_->currentIndex();
  name_->setText(current.siblingAtColumn(kName).data().toString());
  name_->setCursorPosition(0);
  description_->setPlainText(current.siblingAtColumn(kDescription).data().toString());
  const bool any = current.isValid();
  QString messages;
  if (any) tools_.Try([&] { messages = shell::FromUtf8(source_.messages(Kind(), SelectedName())); });
  messages_->setText(messages);
  messages_->setVisible(!messages.isEmpty());
  copy_->setEnabled(any);
  delete_->setEnabled(any);
  // A level of impact sound or an improvement is no reduction index: a facade would be wrong with it.
  take_->setEnabled(any && Kind() == ResultKind::kAirborne);
}

void SavedResultsWindow::Copy() {
  const std::string name = SelectedName();
  if (name.empty()) return;
  tools_.Try([&] {
    const CopiedTable table = source_.copy(Kind(), name);
    if (!table.empty()) QApplication::clipboard()->setMimeData(ClipboardOf(table, tools_.words));
  });
}

void SavedResultsWindow::Delete() {
  const std::string name = SelectedName();
  if (name.empty()) return;
  const QString question =
      tools_.Text(kDeleteResultQuestionRow) + QLatin1Char(' ') + shell::FromUtf8(name) + QLatin1Char('?');
  if (!tools_.Ask(question)) return;
  const int row = grid_->currentIndex().row();
  bool removed = false;
  if (!tools_.Try([&] { removed = source_.remove(Kind(), name); })) return;
  Refresh();
  SelectRow(row);
  if (removed) emit Removed(Kind(), name);
}

void SavedResultsWindow::Take() {
  const std::string name = SelectedName();
  if (purpose_ != Purpose::kTake || name.empty() || Kind() != ResultKind::kAirborne) return;
  std::optional<calculation::FacadePart> part;
  if (!tools_.Try([&] { part = source_.find(Kind(), name); })) return;
  if (!part) {  // deleted by another program since the list was read
    tools_.Tell(tools_.Text(kEntryGoneRow));
    Refresh();
    return;
  }
  emit Taken(*part);
  accept();
}

}  // namespace velmar::structures
