#include "shell/structures/compared_curves_list.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "foundation/message_rows.h"
#include "presentation/drawing/colours.h"
#include "presentation/drawing/compared_looks.h"
#include "shell/structures/curve_sample.h"
#include "shell/structures/difference_view.h"
#include "shell/windows/phrases.h"

namespace velmar::structures {
namespace {

using presentation::ComparedCurve;
using presentation::ComparedLook;

/// In the order of Side.
constexpr std::array kSideLooks = {
    ComparedLook{presentation::kCalculatedColour, presentation::kCalculatedLook},
    ComparedLook{presentation::kLaboratoryColour, presentation::kLaboratoryLook},
    ComparedLook{presentation::kInSituColour, presentation::kInSituLook}};
constexpr int kShownRows = 5;

QString Cell(const std::string& text) { return shell::FromUtf8(text).replace('-', QChar(0x2212)); }

QToolButton* MakeButton(const char* name, Qt::ArrowType arrow, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setObjectName(QLatin1String(name));
  button->setArrowType(arrow);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

}  // namespace

ComparedCurvesList::ComparedCurvesList(const shell::WindowTools& tools, bool is_impact, QWidget* parent)
    : QWidget(parent), tools_(tools), is_impact_(is_impact) {
  setObjectName(QStringLiteral("ConfrontoCurve"));
  table_ = new QTableWidget(this);
  table_->setObjectName(QStringLiteral("TabellaConfronto"));
  table_->setAccessibleName(tools.Text(kComparedCurvesRow));
  QStringList heads = {tools.Text(kCurveHeadingRow)};
  for (const std::string& head : presentation::RatingHeads(is_impact)) heads << shell::FromUtf8(head);
  heads << QStringLiteral("Δ");
  table_->setColumnCount(static_cast<int>(heads.size()));
  table_->setHorizontalHeaderLabels(heads);
  table_->horizontalHeaderItem(static_cast<int>(heads.size()) - 1)->setToolTip(tools.Text(kDifferenceTipRow));
  table_->horizontalHeaderItem(0)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  table_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  table_->horizontalHeader()->setHighlightSections(false);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setTabKeyNavigation(false);
  table_->setShowGrid(false);
  table_->setWordWrap(false);
  table_->setTextElideMode(Qt::ElideRight);
  table_->setIconSize({fontMetrics().height() * 2, fontMetrics().height()});
  table_->setMinimumHeight(fontMetrics().height() * 3 / 2 * (kShownRows + 1) + 4);
  table_->installEventFilter(this);
  connect(table_, &QTableWidget::itemSelectionChanged, this, &ComparedCurvesList::EnableButtons);
  differences_ = new DifferenceView(tools.Text(kDifferenceViewRow), this);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(table_, 1);
  column->addWidget(MakeButtons());
  column->addWidget(differences_);
  Show(std::nullopt);
}

QWidget* ComparedCurvesList::MakeButtons() {
  auto* line = new QWidget(this);
  auto* row = new QHBoxLayout(line);
  row->setContentsMargins(0, 0, 0, 0);
  from_ = new QComboBox(line);
  from_->setObjectName(QStringLiteral("ConfrontoRispetto"));
  from_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  from_->setMinimumContentsLength(8);
  from_->setAccessibleName(tools_.Text(kDifferenceFromRow));
  auto* label = new QLabel(tools_.Text(kDifferenceFromRow), line);
  label->setBuddy(from_);
  connect(from_, &QComboBox::activated, this, [this](int index) {
    against_ = index > 0 ? std::optional(from_->itemData(index).toInt()) : std::nullopt;
    Show(SelectedKey());
    emit Changed();
  });
  up_ = MakeButton("ConfrontoSu", Qt::UpArrow, line);
  up_->setAccessibleName(tools_.Text(kCurveUpRow));
  up_->setToolTip(tools_.Text(kCurveUpTipRow));
  connect(up_, &QToolButton::clicked, this, [this] { Move(-1); });
  down_ = MakeButton("ConfrontoGiu", Qt::DownArrow, line);
  down_->setAccessibleName(tools_.Text(kCurveDownRow));
  down_->setToolTip(tools_.Text(kCurveDownTipRow));
  connect(down_, &QToolButton::clicked, this, [this] { Move(1); });
  remove_ = MakeButton("ConfrontoTogli", Qt::NoArrow, line);
  remove_->setText(tools_.Text(kRemoveCurveRow));
  remove_->setToolTip(tools_.Text(kRemoveCurveTipRow));
  connect(remove_, &QToolButton::clicked, this, &ComparedCurvesList::Remove);
  row->addWidget(label);
  row->addWidget(from_, 1);
  for (QToolButton* button : {up_, down_, remove_}) row->addWidget(button);
  return line;
}

void ComparedCurvesList::Put(Side side, const std::optional<ComparedCurve>& curve) {
  std::optional<ComparedCurve>& there = sides_.at(static_cast<std::size_t>(side));
  if (there == curve) return;
  there = curve;
  Show(SelectedKey());
}

bool ComparedCurvesList::IsFull() const { return added_.size() >= presentation::kComparedLooks.size(); }

void ComparedCurvesList::Add(const ComparedCurve& curve, bool is_variant) {
  if (IsFull()) return;
  std::size_t look = 0;
  while (std::ranges::any_of(added_, [look](const AddedCurve& added) { return added.look == look; })) ++look;
  added_.push_back({curve, next_key_++, look, is_variant});
  Show(added_.back().key);
  emit Changed();
}

void ComparedCurvesList::FollowVariants(const std::vector<ComparedCurve>& variants) {
  const std::vector<AddedCurve> before = std::exchange(added_, {});
  bool changed = false;
  for (const AddedCurve& added : before) {
    const auto now = std::ranges::find(variants, added.curve.name, &ComparedCurve::name);
    if (added.is_variant && now == variants.end()) {
      changed = true;
      continue;
    }
    added_.push_back(added);
    if (!added.is_variant || *now == added.curve) continue;
    added_.back().curve = *now;
    changed = true;
  }
  if (changed) Show(SelectedKey());
}

void ComparedCurvesList::Clear() {
  sides_ = {};
  added_.clear();
  Show(std::nullopt);
}

std::vector<presentation::FurtherCurve> ComparedCurvesList::Added() const {
  std::vector<presentation::FurtherCurve> curves;
  for (const AddedCurve& added : added_) {
    const ComparedLook& look = presentation::kComparedLooks.at(added.look);
    curves.push_back({added.curve.name, added.curve.levels, look.colour, look.look, added.curve.in_octaves});
  }
  return curves;
}

std::vector<ComparedCurvesList::Row> ComparedCurvesList::Rows() const {
  std::vector<Row> rows;
  for (std::size_t side = 0; side < sides_.size(); ++side) {
    if (sides_.at(side)) rows.push_back({static_cast<Key>(side), &*sides_.at(side), kSideLooks.at(side)});
  }
  for (const AddedCurve& added : added_)
    rows.push_back({added.key, &added.curve, presentation::kComparedLooks.at(added.look)});
  return rows;
}

std::optional<ComparedCurvesList::Key> ComparedCurvesList::SelectedKey() const {
  const QList<QTableWidgetItem*> selected = table_->selectedItems();
  if (selected.isEmpty()) return std::nullopt;
  return table_->item(selected.first()->row(), 0)->data(Qt::UserRole).toInt();
}

std::optional<std::size_t> ComparedCurvesList::SelectedAdded() const {
  const std::optional<Key> key = SelectedKey();
  const auto found = std::ranges::find_if(added_, [&](const AddedCurve& added) { return added.key == key; });
  if (found == added_.end()) return std::nullopt;
  return static_cast<std::size_t>(found - added_.begin());
}

void ComparedCurvesList::Remove() {
  const std::optional<Key> key = SelectedKey();
  if (!key || *key == static_cast<Key>(Side::kCalculated)) return;
  if (*key < kSides) {
    emit SideRemoved(static_cast<Side>(*key));
    return;
  }
  const int row = table_->currentRow();
  std::erase_if(added_, [&](const AddedCurve& added) { return added.key == *key; });
  Show(std::nullopt);
  // The next one may be meant as well.
  if (table_->rowCount() > 0) table_->setCurrentCell(std::min(row, table_->rowCount() - 1), 0);
  emit Changed();
}

void ComparedCurvesList::Move(int by) {
  const std::optional<std::size_t> from = SelectedAdded();
  if (!from) return;
  const int to = static_cast<int>(*from) + by;
  if (to < 0 || to >= static_cast<int>(added_.size())) return;
  std::swap(added_.at(*from), added_.at(static_cast<std::size_t>(to)));
  Show(added_.at(static_cast<std::size_t>(to)).key);
  emit Changed();
}

void ComparedCurvesList::Show(std::optional<Key> selected) {
  const std::vector<Row> rows = Rows();
  const auto of_key = [&rows](const std::optional<Key>& key) {
    return std::ranges::find_if(rows, [&key](const Row& row) { return row.key == key; });
  };
  if (of_key(against_) == rows.end()) against_.reset();
  comparison_ = {.is_impact = is_impact_};
  for (const Row& row : rows) comparison_.curves.push_back(*row.curve);
  if (against_) comparison_.against = static_cast<std::size_t>(of_key(against_) - rows.begin());
  const QSignalBlocker quiet(table_);
  table_->setRowCount(static_cast<int>(rows.size()));
  table_->setColumnHidden(table_->columnCount() - 1, !against_.has_value());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const bool differs = against_ && i != *comparison_.against;
    ShowRow(
        static_cast<int>(i), rows[i],
        differs ? RatingDifference(*rows[i].curve, comparison_.curves[*comparison_.against]) : std::nullopt);
  }
  table_->clearSelection();
  if (const auto row = of_key(selected); row != rows.end())
    table_->setCurrentCell(static_cast<int>(row - rows.begin()), 0);
  ShowChoice(rows);
  ShowDifferences(rows);
  EnableButtons();
}

void ComparedCurvesList::ShowRow(int index, const Row& row, const std::optional<double>& difference) {
  const ComparedCurve& curve = *row.curve;
  QStringList cells = {shell::FromUtf8(curve.name), Cell(presentation::RatingCell(curve, is_impact_)),
                       Cell(presentation::SignedCell(curve.term))};
  if (!is_impact_) cells << Cell(presentation::SignedCell(curve.other_term));
  cells << Cell(presentation::SignedCell(difference));
  for (int column = 0; column < static_cast<int>(cells.size()); ++column) {
    auto* item = new QTableWidgetItem(cells.at(column));
    item->setTextAlignment(Qt::AlignVCenter | (column == 0 ? Qt::AlignLeft : Qt::AlignRight));
    table_->setItem(index, column, item);
  }
  QTableWidgetItem* name = table_->item(index, 0);
  name->setData(Qt::UserRole, row.key);
  name->setIcon(SampleOf(row.look, table_->iconSize(), true));
  name->setToolTip(cells.first());
}

void ComparedCurvesList::ShowChoice(const std::vector<Row>& rows) {
  const QSignalBlocker quiet(from_);
  from_->clear();
  from_->addItem(tools_.Text(kNoDifferenceRow));
  for (const Row& row : rows) {
    from_->addItem(shell::FromUtf8(row.curve->name), row.key);
    if (row.key == against_) from_->setCurrentIndex(from_->count() - 1);
  }
  from_->setToolTip(from_->currentText());
}

void ComparedCurvesList::ShowDifferences(const std::vector<Row>& rows) {
  const bool shown = against_ && rows.size() > 1;
  differences_->setVisible(shown);
  if (!shown) return;
  const Row& from = rows.at(*comparison_.against);
  presentation::DifferenceChart chart;
  chart.zero = from.look;
  chart.level_axis = tools_.words(kDifferenceAxisRow);
  for (const Row& row : rows) {
    if (row.key == from.key) continue;
    chart.curves.push_back(
        {DifferencesOf(*row.curve, *from.curve), row.look, row.curve->in_octaves || from.curve->in_octaves});
  }
  differences_->Show(chart);
}

void ComparedCurvesList::EnableButtons() {
  const std::optional<std::size_t> added = SelectedAdded();
  up_->setEnabled(added && *added > 0);
  down_->setEnabled(added && *added + 1 < added_.size());
  const std::optional<Key> key = SelectedKey();
  remove_->setEnabled(key && *key != static_cast<Key>(Side::kCalculated));
}

bool ComparedCurvesList::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  const Qt::KeyboardModifiers modifiers = key->modifiers() & ~Qt::KeypadModifier;
  const bool moves = modifiers == (Qt::ControlModifier | Qt::ShiftModifier);
  if (moves && key->key() == Qt::Key_Up) {
    Move(-1);
  } else if (moves && key->key() == Qt::Key_Down) {
    Move(1);
  } else if (modifiers == Qt::NoModifier && key->key() == Qt::Key_Delete) {
    Remove();
  } else {
    return QWidget::eventFilter(watched, event);
  }
  return true;
}

}  // namespace velmar::structures
