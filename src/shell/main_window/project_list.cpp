#include "shell/main_window/project_list.h"

#include <QDir>
#include <QPainter>
#include <QStyledItemDelegate>

#include "shell/windows/icons.h"

namespace velmar::shell {
namespace {

constexpr int kPathRole = Qt::UserRole;
constexpr int kFolderRole = Qt::UserRole + 1;
constexpr int kPadding = 6;
constexpr int kIcon = 20;

/// The name, and under it the folder in quiet letters.
class ProjectDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const int lines = index.data(kFolderRole).toString().isEmpty() ? 1 : 2;
    return {option.rect.width(), lines * option.fontMetrics.height() + 2 * kPadding};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem ground(option);
    initStyleOption(&ground, index);
    const QIcon icon = ground.icon;
    ground.text.clear();
    ground.icon = {};
    ground.widget->style()->drawControl(QStyle::CE_ItemViewItem, &ground, painter, ground.widget);

    painter->save();
    const bool chosen = option.state & QStyle::State_Selected;
    QRect box = option.rect.adjusted(kPadding, kPadding, -kPadding, -kPadding);
    icon.paint(painter, QRect(box.left(), box.center().y() - kIcon / 2, kIcon, kIcon));
    box.setLeft(box.left() + kIcon + kPadding);
    const auto line = [&](const QString& text, QPalette::ColorRole role, Qt::TextElideMode elide) {
      painter->setPen(option.palette.color(chosen ? QPalette::HighlightedText : role));
      painter->drawText(box, Qt::AlignLeft | Qt::AlignTop,
                        option.fontMetrics.elidedText(text, elide, box.width()));
      box.setTop(box.top() + option.fontMetrics.height());
    };
    line(index.data(Qt::DisplayRole).toString(), QPalette::Text, Qt::ElideRight);
    line(index.data(kFolderRole).toString(), QPalette::PlaceholderText, Qt::ElideMiddle);
    painter->restore();
  }
};

QString ToQt(const std::filesystem::path& path) { return QString::fromStdString(path.string()); }

/// Shipped files are named in small letters with dashes.
QString InWords(QString name) {
  name.replace('-', ' ');
  return name.left(1).toUpper() + name.mid(1);
}

}  // namespace

ProjectList::ProjectList(QWidget* parent) : QListWidget(parent) {
  setItemDelegate(new ProjectDelegate(this));
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setMouseTracking(true);
  // Opening fills this list anew, so it waits until the click is over.
  connect(this, &QListWidget::itemClicked, this, &ProjectList::OpenCurrent, Qt::QueuedConnection);
  connect(this, &QListWidget::itemActivated, this, &ProjectList::OpenCurrent, Qt::QueuedConnection);
}

void ProjectList::Show(const std::vector<std::filesystem::path>& projects, const QString& none,
                       bool with_folders) {
  clear();
  for (const std::filesystem::path& project : projects) {
    const QString name = with_folders ? ToQt(project.stem()) : InWords(ToQt(project.stem()));
    auto* item = new QListWidgetItem(LineIcon("open"), name, this);
    item->setData(kPathRole, ToQt(project));
    if (with_folders) item->setData(kFolderRole, QDir::toNativeSeparators(ToQt(project.parent_path())));
    item->setToolTip(ToQt(project));
  }
  if (!projects.empty()) return;
  auto* item = new QListWidgetItem(none, this);
  item->setFlags(Qt::NoItemFlags);
}

void ProjectList::OpenCurrent() {
  // A click that also activates opens once: by then the start screen is gone.
  if (currentItem() == nullptr || !isVisible()) return;
  const QString path = currentItem()->data(kPathRole).toString();
  if (!path.isEmpty()) emit Opened(path.toStdString());
}

}  // namespace velmar::shell
