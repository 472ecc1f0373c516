#include "shell/materials/material_grid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

#include "shell/fields/name_search.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr int kNameColumn = 0;
constexpr int kNarrowestNameInLetters = 22;
constexpr int kWidestTextInLetters = 40;
constexpr int kHeadingMarginInLetters = 4;  // with the arrow of the sorting
constexpr int kCellMarginInLetters = 2;

bool IsLetter(const QKeyEvent& event) {
  const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  return !command && !event.text().isEmpty() && event.text().front().isPrint() &&
         !event.text().front().isSpace();
}

}  // namespace

MaterialGrid::MaterialGrid(MaterialModel& model, MaterialSearch& shown, QWidget* parent)
    : QTableView(parent), model_(model), shown_(shown) {
  setObjectName(QStringLiteral("DataGrid1"));
  setModel(&shown);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setSortingEnabled(true);
  QHeaderView* header = horizontalHeader();
  header->setSortIndicatorClearable(true);
  header->setSortIndicator(-1, Qt::AscendingOrder);
  header->setHighlightSections(false);
  header->setSectionsMovable(true);
  header->setFirstSectionMovable(false);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  connect(this, &QTableView::doubleClicked, this, &MaterialGrid::Chosen);
}

void MaterialGrid::BeginTable(const QByteArray& widths, bool all_columns) {
  QHeaderView* header = horizontalHeader();
  for (int column = 0; column < header->count(); ++column) header->setSectionHidden(column, false);
  const bool known = !widths.isEmpty() && header->restoreState(widths);
  if (!known) {
    header->setSortIndicator(-1, Qt::AscendingOrder);
    SizeToContents(/*main=*/true);
  }
  ShowColumns(all_columns);
  fit_due_ = !known;
  if (isVisible()) FitName();
}

QByteArray MaterialGrid::Widths() const { return horizontalHeader()->saveState(); }

void MaterialGrid::ShowColumns(bool all) {
  if (all) SizeToContents(/*main=*/false);
  const auto& columns = model_.Columns();
  for (std::size_t i = 0; i < columns.size(); ++i)
    setColumnHidden(static_cast<int>(i), !all && !columns[i].main);
}

int MaterialGrid::ContentWidth(int column) const {
  const int letter = fontMetrics().averageCharWidth();
  const QString heading = model_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
  const int contents = fontMetrics().horizontalAdvance(model_.LongestText(column));
  return std::max(fontMetrics().horizontalAdvance(heading) + letter * kHeadingMarginInLetters,
                  std::min(contents, letter * kWidestTextInLetters) + letter * kCellMarginInLetters);
}

void MaterialGrid::SizeToContents(bool main) {
  const auto& columns = model_.Columns();
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const int column = static_cast<int>(i);
    if (columns[i].main == main) setColumnWidth(column, ContentWidth(column));
  }
}

void MaterialGrid::FitName() {
  viewport_width_ = viewport()->width();
  if (!fit_due_) return;
  fit_due_ = false;
  const int rest = horizontalHeader()->length() - columnWidth(kNameColumn);
  const int narrowest = fontMetrics().averageCharWidth() * kNarrowestNameInLetters;
  setColumnWidth(kNameColumn, std::max({narrowest, columnWidth(kNameColumn), viewport_width_ - rest}));
}

// The window's width goes to the name and comes from it; the other columns keep theirs.
void MaterialGrid::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  const int before = viewport_width_;
  viewport_width_ = viewport()->width();
  if (fit_due_ && isVisible()) {
    FitName();
  } else if (before > 0 && model_.columnCount() > 0) {
    const int narrowest = fontMetrics().averageCharWidth() * kNarrowestNameInLetters;
    const int wanted = columnWidth(kNameColumn) + viewport_width_ - before;
    setColumnWidth(kNameColumn, std::max(narrowest, wanted));
  }
}

std::string MaterialGrid::SelectedName() const {
  const QModelIndex current = currentIndex();
  return current.isValid() ? ToUtf8(current.siblingAtColumn(kNameColumn).data().toString()) : std::string();
}

bool MaterialGrid::SelectBest(const QString& text) {
  if (text.trimmed().isEmpty()) return false;
  QStringList names;
  for (int row = 0; row < shown_.rowCount(); ++row) names << shown_.index(row, kNameColumn).data().toString();
  const QStringList hits = RankedHits(names, text);
  if (hits.isEmpty()) return false;
  SelectRow(static_cast<int>(names.indexOf(hits.constFirst())));
  return true;
}

bool MaterialGrid::SelectName(const std::string& name) {
  const QString wanted = FromUtf8(name);
  for (const Qt::MatchFlags flags :
       {Qt::MatchFlags(Qt::MatchExactly | Qt::MatchCaseSensitive), Qt::MatchFlags(Qt::MatchFixedString)}) {
    const QModelIndexList found =
        shown_.match(shown_.index(0, kNameColumn), Qt::DisplayRole, wanted, 1, flags);
    if (wanted.isEmpty() || found.isEmpty()) continue;
    setCurrentIndex(found.first());
    scrollTo(found.first(), QAbstractItemView::PositionAtCenter);
    return true;
  }
  return false;
}

void MaterialGrid::SelectRow(int row) {
  setCurrentIndex(shown_.index(std::min(row, shown_.rowCount() - 1), kNameColumn));
}

void MaterialGrid::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    emit Chosen();
  } else if (event->key() == Qt::Key_Delete) {
    emit RemoveWanted();
  } else if (IsLetter(*event)) {
    emit Typed(event);
  } else {
    QTableView::keyPressEvent(event);
  }
}

}  // namespace velmar::shell
