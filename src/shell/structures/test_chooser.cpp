#include "shell/structures/test_chooser.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>
#include <algorithm>
#include <set>
#include <utility>

#include "foundation/message_rows.h"

namespace velmar::structures {
namespace {

/// Takes the width that the list has: what does not fit is left out at the end of a name, and its tip has it.
class FittingNames : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {1, QStyledItemDelegate::sizeHint(option, index).height()};
  }
};

constexpr int kTreeCharacters = 42;
constexpr int kListCharacters = 44;

}  // namespace

TestChooser::TestChooser(const shell::WindowTools& tools, LibrarySource source, const Controls& controls,
                         Listener listener, QWidget* parent)
    : QWidget(parent),
      tools_(tools),
      source_(std::move(source)),
      listener_(std::move(listener)),
      model_({tools.Text(kNameHeadingRow)}),
      shown_(model_),
      nodes_(controls.nodes) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  splitter_ = new QSplitter(Qt::Horizontal, this);
  splitter_->setChildrenCollapsible(false);
  splitter_->addWidget(MakeTree(controls));
  splitter_->addWidget(MakeList(controls));
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
  return tree_;
}

QWidget* TestChooser::MakeList(const Controls& controls) {
  auto* side = new QWidget(this);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  keywords_ = new QComboBox(side);
  keywords_->setObjectName(QLatin1String(controls.keywords));
  keywords_->setAccessibleName(tools_.Text(kKeywordFilterRow));
  keywords_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  keywords_->addItem(tools_.Text(kAllKeywordsRow));
  auto* label = new QLabel(tools_.Text(kKeywordFilterRow), side);
  label->setBuddy(keywords_);
  auto* filter = new QHBoxLayout;
  filter->addWidget(label);
  filter->addWidget(keywords_, 1);
  search_ = new QLineEdit(side);
  search_->setObjectName(QLatin1String(controls.list) + QStringLiteral("_cerca"));
  search_->setPlaceholderText(tools_.Text(kStructureSearchRow));
  search_->setAccessibleName(tools_.Text(kStructureSearchRow));
  search_->setClearButtonEnabled(true);
  list_ = new QListView(side);
  list_->setObjectName(QLatin1String(controls.list));
  list_->setAccessibleName(tools_.Text(kTestListRow));
  list_->setUniformItemSizes(true);
  list_->setTextElideMode(Qt::ElideRight);
  list_->setItemDelegate(new FittingNames(list_));
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->setModel(&shown_);
  column->addLayout(filter);
  column->addWidget(search_);
  column->addWidget(list_, 1);
  connect(keywords_, &QComboBox::currentIndexChanged, this, [this] { FillList(); });
  connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) {
    const QString before = list_->currentIndex().data().toString();
    shown_.Search(text);
    // The view moves on to a neighbour of a row that goes; nobody chose that one.
    if (list_->currentIndex().data().toString() != before) Clear();
  });
  connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    const QModelIndexList selected = list_->selectionModel()->selectedIndexes();
    Choose(selected.isEmpty() ? QString() : selected.first().data().toString());
  });
  return side;
}

void TestChooser::FillTree() { structures::FillTree(*tree_, nodes_, source_, tools_); }

void TestChooser::Refresh() {
  const std::optional<LibraryFile> before = std::exchange(file_, std::nullopt);
  const QString keyword = keywords_->currentIndex() > 0 ? keywords_->currentText() : QString();
  const QString name = chosen_ ? shell::ToQt(chosen_->part.name) : QString();
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
  keywords_->setCurrentIndex(std::max(keywords_->findText(keyword), 0));
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
    const QSignalBlocker quiet(keywords_);
    keywords_->clear();
    keywords_->addItem(tools_.Text(kAllKeywordsRow));
    std::set<std::string> listed = {std::string()};
    for (const TestEntry& test : tests_) {
      if (listed.insert(test.keyword).second) keywords_->addItem(shell::ToQt(test.keyword));
    }
  }
  FillList();
  if (listener_.file)
    listener_.file(file, tests_.empty() ? QString() : shell::ToQt(tests_.front().description));
}

void TestChooser::FillList() {
  const bool all = keywords_->currentIndex() <= 0;
  const std::string keyword = shell::FromQt(keywords_->currentText());
  std::vector<QStringList> rows;
  for (const TestEntry& test : tests_) {
    if (all || test.keyword == keyword) rows.push_back({shell::ToQt(test.name)});
  }
  Clear();
  model_.Fill(std::move(rows));
}

void TestChooser::Clear() {
  list_->selectionModel()->clear();
  if (!chosen_) return;
  chosen_.reset();
  if (listener_.test) listener_.test(chosen_);
}

void TestChooser::Choose(const QString& name) {
  std::optional<MeasuredTest> found;
  if (file_ && !name.isEmpty()) tools_.Try([&] { found = source_.test(*file_, shell::FromQt(name)); });
  if (!found && !chosen_) return;
  chosen_ = std::move(found);
  if (listener_.test) listener_.test(chosen_);
}

}  // namespace velmar::structures
