#include "shell/structures/test_chooser.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSplitter>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <set>
#include <utility>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "shell/fields/corrections.h"
#include "shell/fields/filter_box.h"
#include "shell/fields/search_field.h"
#include "shell/windows/phrases.h"

namespace velmar::structures {
namespace {

/// Takes the width that the list has: the end of a name that does not fit is left out, the tool tip has it.
class FittingNames : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {1, QStyledItemDelegate::sizeHint(option, index).height()};
  }
};

/// What a test is to serve for, as the filter lists it.
enum class Use { kAny, kFacadeByBands, kRatingAlone, kComparison };
constexpr std::array kUses = {
    std::pair{Use::kAny, kUsableAnyRow}, std::pair{Use::kFacadeByBands, kUsableBandsRow},
    std::pair{Use::kRatingAlone, kUsableRatingRow}, std::pair{Use::kComparison, kUsableComparisonRow}};

bool Serves(const storage::TestUses& uses, Use use) {
  switch (use) {
    case Use::kAny:
      return true;
    case Use::kFacadeByBands:
      return uses.facade_by_bands;
    case Use::kRatingAlone:
      return uses.facade_by_rating && !uses.facade_by_bands;
    case Use::kComparison:
      return uses.comparison;
  }
  return true;
}

/// Letters that are worth a look into other files.
constexpr qsizetype kShortestSearch = 3;
constexpr int kTreeCharacters = 42;
constexpr int kListCharacters = 44;
/// Of a filter that are seen at the least.
constexpr int kFilterCharacters = 8;

}  // namespace

TestChooser::TestChooser(const shell::WindowTools& tools, LibrarySource source, const Controls& controls,
                         QWidget* parent)
    : QWidget(parent),
      tools_(tools),
      source_(std::move(source)),
      enters_(controls.enters),
      model_({tools.Text(kNameHeadingRow)}),
      shown_(model_),
      nodes_(controls.nodes) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  splitter_ = new QSplitter(Qt::Horizontal, this);
  splitter_->setChildrenCollapsible(false);
  splitter_->addWidget(MakeTree(controls));
  splitter_->addWidget(MakeList(controls));
  splitter_->setStretchFactor(0, 1);
  splitter_->setStretchFactor(1, 1);
  const int character = fontMetrics().averageCharWidth();
  splitter_->setSizes({character * kTreeCharacters, character * kListCharacters});
  row->addWidget(splitter_);
}

QWidget* TestChooser::MakeTree(const Controls& controls) {
  tree_ = new QTreeWidget(this);
  tree_->setObjectName(QLatin1String(controls.tree));
  tree_->setAccessibleName(tools_.Text(kDatabaseTreeRow));
  tree_->setHeaderHidden(true);
  tree_->setUniformRowHeights(true);
  tree_->setTextElideMode(Qt::ElideRight);
  tree_->setIndentation(fontMetrics().averageCharWidth() * 2);
  tree_->setMinimumWidth(fontMetrics().averageCharWidth() * kTreeCharacters / 2);
  FillTree();
  connect(tree_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
    if (const std::optional<LibraryFile> file = FileOf(item)) OpenFile(*file);
  });
  if (!enters_) return tree_;
  const auto enter = [this](const QTreeWidgetItem* item) {
    if (const std::optional<Branch> branch = EmptyBranchOf(item)) emit EntryWanted(*branch);
  };
  connect(tree_, &QTreeWidget::itemActivated, this, enter);
  // Where one click activates an item, that signal has come already.
  if (!tree_->style()->styleHint(QStyle::SH_ItemView_ActivateItemOnSingleClick, nullptr, tree_))
    connect(tree_, &QTreeWidget::itemClicked, this, enter);
  return tree_;
}

QWidget* TestChooser::MakeList(const Controls& controls) {
  auto* side = new QWidget(this);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  keywords_ = new shell::FilterBox(QLatin1String(controls.keywords), side);
  keywords_->setAccessibleName(tools_.Text(kKeywordFilterRow));
  keywords_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  keywords_->Offer({tools_.Text(kAllKeywordsRow)});
  ShowKeyword(QString());
  keywords_->setMinimumContentsLength(kFilterCharacters);
  auto* filters = new QFormLayout;
  // A single filter in the narrow column of a comparison stands as wide as the search below it.
  filters->setRowWrapPolicy(controls.filters_uses ? QFormLayout::WrapLongRows : QFormLayout::WrapAllRows);
  filters->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  filters->addRow(tools_.Text(kKeywordFilterRow), keywords_);
  uses_ = new QComboBox(side);
  uses_->setObjectName(QLatin1String(controls.list) + QStringLiteral("_uso"));
  uses_->setAccessibleName(tools_.Text(kUsableForRow));
  uses_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  for (const auto& [use, row] : kUses) uses_->addItem(tools_.Text(row));
  uses_->setMinimumContentsLength(kFilterCharacters);
  if (controls.filters_uses) {
    filters->addRow(tools_.Text(kUsableForRow), uses_);
  } else {
    uses_->hide();
  }
  search_ = new shell::SearchField(QLatin1String(controls.list) + QStringLiteral("_cerca"),
                                   tools_.Text(kStructureSearchRow), side);
  list_ = new QListView(side);
  list_->setObjectName(QLatin1String(controls.list));
  list_->setAccessibleName(tools_.Text(kTestListRow));
  list_->setUniformItemSizes(true);
  list_->setTextElideMode(Qt::ElideRight);
  list_->setItemDelegate(new FittingNames(list_));
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->setModel(&shown_);
  column->addLayout(filters);
  column->addWidget(search_);
  column->addWidget(list_, 1);
  connect(keywords_, &shell::FilterBox::Chosen, this, [this](const std::string& keyword) {
    const bool all = keyword == shell::ToUtf8(tools_.Text(kAllKeywordsRow));
    ShowKeyword(all ? QString() : shell::FromUtf8(keyword));
    FillList();
  });
  connect(keywords_, &shell::FilterBox::Corrected, this, [this](shell::Correction correction, int limit) {
    NoteCorrection(keywords_, correction, limit, tools_.words);
  });
  connect(uses_, &QComboBox::currentIndexChanged, this, [this] { FillList(); });
  connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) {
    const QString before = list_->currentIndex().data().toString();
    shown_.Search(text);
    // The view moves on to a neighbour of a row that goes; nobody chose that one.
    if (list_->currentIndex().data().toString() != before) Clear();
    SearchOtherFiles();
  });
  connect(search_, &shell::SearchField::Entered, this, &TestChooser::TakeHit);
  connect(list_, &QListView::activated, this, &TestChooser::Meant);
  connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    const QModelIndexList selected = list_->selectionModel()->selectedIndexes();
    Choose(selected.isEmpty() ? QString() : selected.first().data().toString());
  });
  return side;
}

void TestChooser::FillTree() {
  structures::FillTree(*tree_, nodes_, source_, tools_, enters_ ? tools_.Text(kNoSeriesRow) : QString());
}

void TestChooser::Refresh() {
  searched_.clear();
  Refill(file_, keyword_, chosen_ ? shell::FromUtf8(chosen_->part.name) : QString());
}

void TestChooser::ShowTest(Branch branch, const std::string& series, const QString& name) {
  std::optional<LibraryFile> shown;
  tools_.Try([&] {
    for (const LibraryFile& file : source_.files(branch)) {
      if (file.name == series) shown = file;
    }
  });
  search_->clear();
  uses_->setCurrentIndex(0);
  searched_.clear();
  Refill(shown ? shown : file_, QString(), name);
}

void TestChooser::Refill(const std::optional<LibraryFile>& file, const QString& keyword,
                         const QString& name) {
  const std::optional<LibraryFile> before = file;
  file_.reset();
  {
    const QSignalBlocker quiet(tree_);
    FillTree();
    for (QTreeWidgetItemIterator item(tree_); before && *item != nullptr; ++item) {
      if (FileOf(*item) != before) continue;
      tree_->setCurrentItem(*item);
      file_ = before;
    }
  }
  if (!file_) {  // the file is gone, or none was open
    tests_.clear();
    FillList();
    return;
  }
  OpenFile(*before);
  if (keywords_->findText(keyword) > 0) {
    ShowKeyword(keyword);
    FillList();
  }
  const QModelIndexList again =
      shown_.match(shown_.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (!name.isEmpty() && !again.isEmpty()) list_->setCurrentIndex(again.first());
}

void TestChooser::OpenFile(const LibraryFile& file) {
  std::vector<TestEntry> tests;
  tools_.Try([&] { tests = source_.tests(file); });
  file_ = file;
  tests_ = std::move(tests);
  {
    QStringList keywords = {tools_.Text(kAllKeywordsRow)};
    std::set<std::string> listed = {std::string()};
    for (const TestEntry& test : tests_) {
      if (listed.insert(test.keyword).second) keywords << shell::FromUtf8(test.keyword);
    }
    keywords_->Offer(keywords);
    ShowKeyword(QString());
  }
  FillList();
  emit FileOpened(file, tests_.empty() ? QString() : shell::FromUtf8(tests_.front().description));
}

void TestChooser::ShowKeyword(const QString& keyword) {
  keyword_ = keyword;
  keywords_->Show(shell::ToUtf8(keyword.isEmpty() ? tools_.Text(kAllKeywordsRow) : keyword));
}

void TestChooser::FillList() {
  const std::string keyword = shell::ToUtf8(keyword_);
  std::vector<QStringList> rows;
  const Use use = kUses.at(static_cast<std::size_t>(std::max(uses_->currentIndex(), 0))).first;
  for (const TestEntry& test : tests_) {
    if ((keyword.empty() || test.keyword == keyword) && Serves(test.uses, use))
      rows.push_back({shell::FromUtf8(test.name)});
  }
  Clear();
  model_.Fill(std::move(rows));
}

void TestChooser::FocusSearch() { search_->setFocus(Qt::OtherFocusReason); }

void TestChooser::SearchOtherFiles() {
  if (shown_.rowCount() > 0 || search_->text().trimmed().size() < kShortestSearch) return;
  const std::optional<LibraryFile> file = FirstFileWithHit();
  if (!file) return;
  {
    const QSignalBlocker quiet(uses_);
    uses_->setCurrentIndex(0);
  }
  Refill(file, QString(), QString());
}

std::optional<LibraryFile> TestChooser::FirstFileWithHit() {
  EntryModel names({QString()});
  EntrySearch hits(names);
  hits.Search(search_->text());
  for (QTreeWidgetItemIterator item(tree_); *item != nullptr; ++item) {
    const std::optional<LibraryFile> file = FileOf(*item);
    if (!file || file == file_) continue;
    const auto [known, is_new] = searched_.try_emplace(file->path);
    try {
      for (const TestEntry& test : is_new ? source_.tests(*file) : std::vector<TestEntry>())
        known->second.push_back({shell::FromUtf8(test.name)});
    } catch (const Failure&) {
      continue;  // opening that file tells why
    }
    names.Fill(known->second);
    if (hits.rowCount() > 0) return file;
  }
  return std::nullopt;
}

void TestChooser::TakeHit() {
  if (search_->text().trimmed().isEmpty()) return;
  const int best = shown_.BestHit(search_->text(), 0);
  if (best < 0) return search_->SayNoHit(tools_.words);
  if (!list_->currentIndex().isValid()) list_->setCurrentIndex(shown_.index(best, 0));
}

void TestChooser::Clear() {
  list_->selectionModel()->clear();
  if (!chosen_) return;
  chosen_.reset();
  emit TestChosen(chosen_);
}

void TestChooser::Choose(const QString& name) {
  std::optional<MeasuredTest> found;
  if (file_ && !name.isEmpty()) tools_.Try([&] { found = source_.test(*file_, shell::ToUtf8(name)); });
  if (!found && !chosen_) return;
  chosen_ = std::move(found);
  emit TestChosen(chosen_);
}

}  // namespace velmar::structures
