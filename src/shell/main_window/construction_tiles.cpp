#include "shell/main_window/construction_tiles.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QRegularExpression>
#include <QStyledItemDelegate>
#include <algorithm>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"
#include "presentation/drawing/section_drawing.h"
#include "shell/commands/command_table.h"
#include "shell/windows/dark_outlines.h"
#include "shell/windows/icons.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

enum Role { kPath = Qt::UserRole, kOwn, kButton, kNumbers };

/// What the list of kinds holds beside the numbers of the element buttons.
constexpr int kAllKinds = 0;
constexpr int kOwnAlone = -1;

constexpr int kWidth = 168;  ///< the least
constexpr int kLineMargin = 4;
constexpr int kSectionHeight = 56;
constexpr int kPadding = 8;
constexpr int kNameLines = 2;
constexpr double kCorner = 6.0;
constexpr const char* kUsual = "usuale-";

QString FromUtf8(const std::filesystem::path& path) { return QString::fromStdString(path.string()); }
std::filesystem::path PathOf(const QListWidgetItem& item) {
  return item.data(kPath).toString().toStdString();
}

bool IsUsual(const std::filesystem::path& project) { return project.filename().string().starts_with(kUsual); }

/// Shipped files are named in small letters with dashes, and the usual ones numbered.
QString InWords(QString name) {
  static const QRegularExpression number(QString("^%1[0-9]+-").arg(kUsual));
  name.remove(number);
  name.replace('-', ' ');
  return name.left(1).toUpper() + name.mid(1);
}

QString NumbersOf(const ProjectGlance& glance, const presentation::Words& words) {
  QStringList numbers = {RatingOf(glance, words)};
  if (glance.surface_mass_kg_m2 > 0.0)
    numbers += FromUtf8(FormatShortest(RoundToEven(glance.surface_mass_kg_m2))) + QStringLiteral(" kg/m²");
  numbers.removeAll(QString());
  return numbers.join(QStringLiteral(" · "));
}

/// Draws the section as on paper, and below it the name and the numbers.
class TileDelegate : public QStyledItemDelegate {
 public:
  TileDelegate(const std::map<QString, presentation::Section>& sections, QObject* parent)
      : QStyledItemDelegate(parent), sections_(sections) {}

  /// As many tiles as find room in a line share it.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const override {
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    const int room = view != nullptr ? view->viewport()->width() - kLineMargin : 0;
    const int width = std::max(kWidth, room / std::max(1, room / kWidth));
    return {width, kSectionHeight + (kNameLines + 1) * option.fontMetrics.lineSpacing() + 3 * kPadding + 6};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF tile = QRectF(option.rect).adjusted(3.5, 3.5, -3.5, -3.5);
    const bool focused = (option.state & QStyle::State_HasFocus) != 0;
    const bool marked = focused || (option.state & QStyle::State_MouseOver) != 0;
    const QPalette& colours = option.palette;
    const QColor outline = marked ? colours.color(QPalette::Highlight) : QuietOutline(colours);
    painter->setPen(QPen(outline, focused ? 2.0 : 1.0));
    painter->setBrush(colours.color(QPalette::Base));
    painter->drawRoundedRect(tile, kCorner, kCorner);
    const QRectF paper(tile.left() + kPadding, tile.top() + kPadding, tile.width() - 2 * kPadding,
                       kSectionHeight);
    DrawPicture(*painter, paper, index);
    DrawWords(*painter, paper, option, index);
    painter->restore();
  }

 private:
  void DrawPicture(QPainter& painter, const QRectF& paper, const QModelIndex& index) const {
    const auto section = sections_.find(index.data(kPath).toString());
    if (section == sections_.end()) return;  // not looked at yet
    if (!section->second.strips.empty()) {
      painter.save();
      painter.setClipRect(paper);
      presentation::DrawSection(painter, paper, section->second, {.strips_alone = true});
      painter.restore();
    } else if (index.data(kButton).toInt() != 0) {
      LineIcon("facade").paint(&painter, paper.toRect());
    }
  }

  static void DrawWords(QPainter& painter, const QRectF& paper, const QStyleOptionViewItem& option,
                        const QModelIndex& index) {
    const QFontMetrics& metrics = option.fontMetrics;
    const int line = metrics.lineSpacing();
    QRect words(qRound(paper.left()), qRound(paper.bottom()) + kPadding, qRound(paper.width()),
                kNameLines * line);
    painter.setFont(option.font);
    painter.setPen(option.palette.color(QPalette::Text));
    // A word that does not fit into the first line leaves room there.
    const QString name = metrics.elidedText(index.data(Qt::DisplayRole).toString(), Qt::ElideRight,
                                            kNameLines * words.width() - words.width() / 4);
    painter.drawText(words, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, name);
    words.translate(0, kNameLines * line);
    words.setHeight(line);
    painter.setPen(option.palette.color(QPalette::PlaceholderText));
    painter.drawText(words, Qt::AlignLeft | Qt::AlignTop,
                     metrics.elidedText(index.data(kNumbers).toString(), Qt::ElideRight, words.width()));
  }

  const std::map<QString, presentation::Section>& sections_;
};

}  // namespace

ConstructionTiles::ConstructionTiles(presentation::Words words, QWidget* parent)
    : QListWidget(parent), words_(std::move(words)), kinds_(new QComboBox(parent)) {
  setItemDelegate(new TileDelegate(sections_, this));
  setViewMode(QListView::IconMode);
  setResizeMode(QListView::Adjust);
  setMovement(QListView::Static);
  setUniformItemSizes(true);
  setMouseTracking(true);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  FillKinds();
  // Choosing fills the tiles anew, so it waits until the click is over.
  connect(this, &QListWidget::itemClicked, this, &ConstructionTiles::Choose, Qt::QueuedConnection);
  connect(this, &QListWidget::itemActivated, this, &ConstructionTiles::Choose, Qt::QueuedConnection);
}

void ConstructionTiles::FillKinds() {
  kinds_->setObjectName("TipoCostruzioni");
  kinds_->setAccessibleName(Text(words_, kShowKindRow));
  kinds_->setToolTip(kinds_->accessibleName());
  kinds_->addItem(Text(words_, kAllKindsRow), kAllKinds);
  for (const Command& command : Commands()) {
    if (command.Kind()) kinds_->addItem(Text(words_, command.Caption()), command.button);
  }
  kinds_->addItem(Text(words_, kOwnTemplatesRow), kOwnAlone);
  connect(kinds_, &QComboBox::currentIndexChanged, this, &ConstructionTiles::ShowKind);
}

std::vector<std::filesystem::path> ConstructionTiles::Projects() const {
  std::vector<std::filesystem::path> projects;
  for (int i = 0; i < count(); ++i) {
    if (std::filesystem::path project = PathOf(*item(i)); !project.empty())
      projects.push_back(std::move(project));
  }
  return projects;
}

void ConstructionTiles::Show(const std::vector<std::filesystem::path>& templates,
                             const std::vector<std::filesystem::path>& examples) {
  clear();
  sections_.clear();
  for (const std::filesystem::path& project : templates) Add(project, /*own=*/true);
  std::vector<std::filesystem::path> ordered = examples;
  std::ranges::stable_partition(ordered, IsUsual);
  for (const std::filesystem::path& project : ordered) Add(project, /*own=*/false);
  if (count() == 0) {
    auto* none = new QListWidgetItem(Text(words_, kNoExamplesRow), this);
    none->setFlags(Qt::NoItemFlags);
  }
  ShowKind();
}

void ConstructionTiles::Add(const std::filesystem::path& project, bool own) {
  const QString name = FromUtf8(project.stem());
  auto* item = new QListWidgetItem(own ? name : InWords(name), this);
  item->setData(kPath, FromUtf8(project));
  item->setData(kOwn, own);
}

void ConstructionTiles::Tell(const std::filesystem::path& project, const ProjectGlance& glance) {
  const QString path = FromUtf8(project);
  for (int i = 0; i < count(); ++i) {
    QListWidgetItem& tile = *item(i);
    if (tile.data(kPath).toString() != path) continue;
    sections_[path] = glance.section;
    const QString numbers = NumbersOf(glance, words_);
    tile.setData(kButton, glance.calculation ? static_cast<int>(RowOf(*glance.calculation).button) : 0);
    tile.setData(kNumbers, numbers);
    QStringList tip = {tile.text(), FromUtf8(glance.title), KindOf(glance, words_), numbers,
                       HindranceOf(glance, words_)};
    if (tile.data(kOwn).toBool()) tip += Text(words_, kOwnTemplateRow);
    tip.removeAll(QString());
    tile.setToolTip(tip.join('\n'));
    tile.setData(Qt::AccessibleTextRole, tip.join(", "));
    tile.setHidden(!IsShown(tile));
  }
}

bool ConstructionTiles::IsShown(const QListWidgetItem& item) const {
  const int kind = kinds_->currentData().toInt();
  if (kind == kAllKinds) return true;
  if (kind == kOwnAlone) return item.data(kOwn).toBool();
  return item.data(kButton).toInt() == kind;
}

void ConstructionTiles::ShowKind() {
  for (int i = 0; i < count(); ++i) item(i)->setHidden(!IsShown(*item(i)));
}

void ConstructionTiles::Choose(const QListWidgetItem* item) {
  // A click that also activates opens once: by then the start screen is gone.
  if (item == nullptr || !isVisible() || PathOf(*item).empty()) return;
  if (item->data(kOwn).toBool()) {
    emit TemplateChosen(PathOf(*item));
  } else {
    emit ExampleChosen(PathOf(*item));
  }
}

void ConstructionTiles::contextMenuEvent(QContextMenuEvent* event) {
  QListWidgetItem* at = event->reason() == QContextMenuEvent::Keyboard ? currentItem() : itemAt(event->pos());
  if (at == nullptr || !at->data(kOwn).toBool()) return;
  setCurrentItem(at);
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const std::filesystem::path project = PathOf(*at);
  menu->addAction(Text(words_, kRenameTemplateRow), QKeySequence(Qt::Key_F2), this,
                  [this, project] { emit RenamingWanted(project); });
  menu->addAction(Text(words_, kDeleteTemplateRow), QKeySequence(Qt::Key_Delete), this,
                  [this, project] { emit RemovalWanted(project); });
  menu->popup(event->globalPos());
}

void ConstructionTiles::keyPressEvent(QKeyEvent* event) {
  const QListWidgetItem* at = currentItem();
  const bool own = at != nullptr && at->data(kOwn).toBool();
  if (own && event->key() == Qt::Key_F2) {
    emit RenamingWanted(PathOf(*at));
  } else if (own && event->key() == Qt::Key_Delete) {
    emit RemovalWanted(PathOf(*at));
  } else {
    QListWidget::keyPressEvent(event);
  }
}

}  // namespace velmar::shell
