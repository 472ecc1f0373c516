#include "shell/materials/material_tree_window.h"

#include <QApplication>
#include <QFormLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>
#include <array>

#include "foundation/message_rows.h"
#include "shell/fields/search_field.h"
#include "shell/materials/material_columns.h"
#include "shell/materials/material_texts.h"
#include "shell/windows/phrases.h"
#include "storage/materials/material_row.h"

namespace velmar::shell {
namespace {

using elements::MaterialFamily;

constexpr std::array kFamilies = {MaterialFamily::kStructural, MaterialFamily::kFibrous,
                                  MaterialFamily::kResilient};
constexpr const char* kMemoryName = "albero-materiali";
constexpr QSize kSmallest{390, 353};

/// The lines of the frame.
struct Property {
  const char* control = "";
  MessageRow caption{};
  const char* column = "";
  bool fibrous_only = false;
};
constexpr std::array kProperties = {
    Property{"LabelNome", kMaterialNameRow, "Materiale"},
    Property{"LabelSpessore", kMaterialThicknessRow, "s (mm)"},
    Property{"LabelDensita", kMaterialDensityRow, "Densità (kg/m³)"},
    Property{"LabelYoung", kMaterialYoungsModulusRow, "Modulo di Young E (GPa)"},
    Property{"LabelResistenza", kMaterialFlowResistanceRow, "Resistenza specifica al flusso Rs (Pa sec/m)",
             true},
};

}  // namespace

MaterialTreeWindow::MaterialTreeWindow(WindowTools tools, MaterialSource source, Put put, QWidget* parent)
    : QDialog(parent),
      tools_(std::move(tools)),
      source_(std::move(source)),
      put_(std::move(put)),
      model_(tools_),
      shown_(model_) {
  setObjectName(QStringLiteral("FormSceltaMateriali"));
  setWindowTitle(tools_.Text(kMaterialTreeCaptionRow));
  setMinimumSize(kSmallest);
  auto* column = new QVBoxLayout(this);
  sides_ = new QSplitter(Qt::Horizontal, this);
  sides_->setChildrenCollapsible(false);
  sides_->addWidget(MakeTree());
  sides_->addWidget(MakeProperties());
  sides_->setStretchFactor(0, 1);
  column->addWidget(sides_, 1);
  hint_ = new QLabel(tools_.Text(kTreeHintRow), this);
  hint_->setObjectName(QStringLiteral("LabelGuida"));
  hint_->setWordWrap(true);
  column->addWidget(hint_);
  if (parent != nullptr) parent->installEventFilter(this);
  const QFontMetrics metrics = fontMetrics();
  if (!RestoreSizes(tools_.memory, {QLatin1String(kMemoryName), this, nullptr, sides_})) {
    resize(metrics.averageCharWidth() * 105, metrics.height() * 28);
    sides_->setSizes({metrics.averageCharWidth() * 50, metrics.averageCharWidth() * 55});
    StandBeside(parent);
  }
  Refresh();
  tree_->expand(shown_.mapFromSource(model_.RootOf(MaterialFamily::kStructural)));
  tree_->setCurrentIndex(shown_.index(0, 0));
  search_->setFocus();
}

MaterialTreeWindow::~MaterialTreeWindow() {
  SaveSizes(tools_.memory, {QLatin1String(kMemoryName), this, nullptr, sides_});
}

// At the right edge, where the layer rows that materials are dragged to stay in sight.
void MaterialTreeWindow::StandBeside(const QWidget* main) {
  if (main == nullptr) return;
  const QRect place = main->geometry();
  move(place.right() - width(), place.center().y() - height() / 2);
}

QWidget* MaterialTreeWindow::MakeTree() {
  auto* side = new QWidget(this);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  search_ = new SearchField(QStringLiteral("TextCerca"), tools_.Text(kTreeSearchRow), side);
  search_->installEventFilter(this);
  connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) { SearchFor(text); });
  tree_ = new QTreeView(side);
  tree_->setObjectName(QStringLiteral("Treeview1"));
  tree_->setAccessibleName(tools_.Text(kMaterialTreeCaptionRow));
  tree_->setModel(&shown_);
  tree_->setHeaderHidden(true);
  tree_->setUniformRowHeights(true);
  tree_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tree_->setDragEnabled(true);
  tree_->setDragDropMode(QAbstractItemView::DragOnly);
  tree_->setExpandsOnDoubleClick(true);
  tree_->installEventFilter(this);
  connect(tree_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { ShowSelected(); });
  connect(tree_, &QTreeView::doubleClicked, this, [this] { PutSelected(); });
  column->addWidget(search_);
  column->addWidget(tree_, 1);
  return side;
}

QWidget* MaterialTreeWindow::MakeProperties() {
  auto* frame = new QGroupBox(tools_.Text(kMaterialPropertiesRow), this);
  frame->setObjectName(QStringLiteral("LabelCarattMat"));
  form_ = new QFormLayout(frame);
  form_->setRowWrapPolicy(QFormLayout::WrapLongRows);
  form_->setLabelAlignment(Qt::AlignLeft | Qt::AlignTop);
  for (const Property& property : kProperties) {
    auto* value = new QLabel(frame);
    value->setObjectName(QLatin1String(property.control));
    value->setTextFormat(Qt::PlainText);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value->setWordWrap(true);
    auto* caption = new QLabel(tools_.Text(property.caption), frame);
    caption->setBuddy(value);
    form_->addRow(caption, value);
    values_.push_back(value);
  }
  return frame;
}

void MaterialTreeWindow::Refresh() {
  std::vector<std::vector<storage::ListedMaterial>> names;
  if (!tools_.Try([&] {
        for (const MaterialFamily family : kFamilies) names.push_back(source_.names(family));
      }))
    return;
  for (std::size_t i = 0; i < kFamilies.size(); ++i) Fill(kFamilies.at(i), names.at(i));
}

void MaterialTreeWindow::Refresh(MaterialFamily family) {
  std::vector<storage::ListedMaterial> names;
  if (tools_.Try([&] { names = source_.names(family); })) Fill(family, names);
}

void MaterialTreeWindow::Fill(MaterialFamily family, const std::vector<storage::ListedMaterial>& names) {
  std::array<bool, kFamilies.size()> expanded{};
  for (std::size_t i = 0; i < expanded.size(); ++i)
    expanded.at(i) = tree_->isExpanded(shown_.index(static_cast<int>(i), 0));
  const auto before = Selected();
  model_.Fill(family, names);
  for (std::size_t i = 0; i < expanded.size(); ++i)
    tree_->setExpanded(shown_.index(static_cast<int>(i), 0), expanded.at(i));
  if (before) Select(*before);
}

std::optional<DraggedMaterial> MaterialTreeWindow::Selected() const {
  return model_.MaterialAt(shown_.mapToSource(tree_->currentIndex()));
}

void MaterialTreeWindow::Select(const DraggedMaterial& material) {
  const QModelIndex root = shown_.mapFromSource(model_.RootOf(material.family));
  const QModelIndexList found =
      shown_.match(shown_.index(0, 0, root), Qt::DisplayRole, material.name, 1, Qt::MatchExactly);
  tree_->setCurrentIndex(found.isEmpty() ? root : found.first());
}

void MaterialTreeWindow::ShowSelected() {
  const auto selected = Selected();
  std::optional<MaterialCells> cells;
  storage::TableSchema table;
  if (selected) {
    table = storage::TableOf(selected->family);
    tools_.Try([&] { cells = source_.find(selected->family, ToUtf8(selected->name)); });
  }
  for (std::size_t i = 0; i < kProperties.size(); ++i) {
    const Property& property = kProperties.at(i);
    const auto place = table.Find(property.column);
    values_.at(i)->setText(cells && place ? Shown(cells->at(*place), tools_) : QString());
    const bool visible = !property.fibrous_only || (selected && selected->family == MaterialFamily::kFibrous);
    values_.at(i)->setVisible(visible);
    form_->labelForField(values_.at(i))->setVisible(visible);
  }
  hint_->setText(tools_.Text(kTreeHintRow));
}

void MaterialTreeWindow::PutSelected() {
  const auto selected = Selected();
  if (!selected) return;
  hint_->setText(tools_.Text(put_ && put_(*selected) ? kTreeHintRow : kNoPlaceForMaterialRow));
}

void MaterialTreeWindow::SearchFor(const QString& text) {
  const auto before = Selected();
  shown_.Search(text);
  if (text.trimmed().isEmpty()) {
    tree_->scrollTo(tree_->currentIndex());
    return;
  }
  tree_->expandAll();
  const auto now = Selected();
  if (now && before && now->name == before->name) {
    tree_->scrollTo(tree_->currentIndex());
    return;
  }
  for (int root = 0; root < shown_.rowCount(); ++root) {
    const QModelIndex first = shown_.index(0, 0, shown_.index(root, 0));
    if (!first.isValid()) continue;
    tree_->setCurrentIndex(first);
    return;
  }
  tree_->setCurrentIndex(shown_.index(0, 0));
}

void MaterialTreeWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F5) {
    Refresh();
  } else if (event->matches(QKeySequence::Find)) {
    search_->setFocus();
    search_->selectAll();
  } else {
    QDialog::keyPressEvent(event);
  }
}

bool MaterialTreeWindow::eventFilter(QObject* watched, QEvent* event) {
  // It goes with the main window.
  if (watched == parentWidget() && event->type() == QEvent::Close) close();
  if (watched == parentWidget() || event->type() != QEvent::KeyPress)
    return QDialog::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key == Qt::Key_Return || key == Qt::Key_Enter) {
    const bool without_hit = watched == search_ && !search_->text().trimmed().isEmpty() && !Selected();
    if (without_hit) {
      search_->SayNoHit(tools_.words);
    } else {
      PutSelected();
    }
    return true;
  }
  const bool moves =
      key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_PageDown || key == Qt::Key_PageUp;
  if (watched == search_ && moves) {
    QApplication::sendEvent(tree_, event);
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace velmar::shell
