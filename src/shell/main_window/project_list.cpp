#include "shell/main_window/project_list.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QStyledItemDelegate>
#include <utility>

#include "foundation/message_rows.h"
#include "shell/main_window/project_glances.h"
#include "shell/windows/icons.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr int kPathRole = Qt::UserRole;
constexpr int kFolderRole = Qt::UserRole + 1;
constexpr int kFactsRole = Qt::UserRole + 2;
constexpr int kLines = 3;
constexpr int kPadding = 6;
constexpr int kIcon = 20;

/// The name, and under it in quiet letters what the project is and its folder.
class ProjectDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const int lines = index.data(kPathRole).toString().isEmpty() ? 1 : kLines;
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
    line(index.data(kFactsRole).toString(), QPalette::PlaceholderText, Qt::ElideRight);
    line(index.data(kFolderRole).toString(), QPalette::PlaceholderText, Qt::ElideMiddle);
    painter->restore();
  }
};

QString FromUtf8(const std::filesystem::path& path) { return QString::fromStdString(path.string()); }

/// The day on which `project` was written.
QString DayOf(const std::filesystem::path& project) {
  return QFileInfo(FromUtf8(project)).lastModified().toString(QStringLiteral("dd/MM/yyyy"));
}

}  // namespace

ProjectList::ProjectList(presentation::Words words, QWidget* parent)
    : QListWidget(parent), words_(std::move(words)) {
  setItemDelegate(new ProjectDelegate(this));
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setMouseTracking(true);
  // Opening fills this list anew, so it waits until the click is over.
  connect(this, &QListWidget::itemClicked, this, &ProjectList::OpenCurrent, Qt::QueuedConnection);
  connect(this, &QListWidget::itemActivated, this, &ProjectList::OpenCurrent, Qt::QueuedConnection);
}

void ProjectList::Show(const std::vector<std::filesystem::path>& projects) {
  clear();
  for (const std::filesystem::path& project : projects) {
    auto* item = new QListWidgetItem(LineIcon("open"), FromUtf8(project.stem()), this);
    item->setData(kPathRole, FromUtf8(project));
    item->setData(kFactsRole, DayOf(project));
    item->setData(kFolderRole, QDir::toNativeSeparators(FromUtf8(project.parent_path())));
    item->setToolTip(FromUtf8(project));
  }
  if (!projects.empty()) return;
  auto* item = new QListWidgetItem(Text(words_, kNoRecentRow), this);
  item->setFlags(Qt::NoItemFlags);
}

void ProjectList::Tell(const std::filesystem::path& project, const ProjectGlance& glance) {
  const QString path = FromUtf8(project);
  for (int i = 0; i < count(); ++i) {
    QListWidgetItem& entry = *item(i);
    if (entry.data(kPathRole).toString() != path) continue;
    // The line may end with an ellipsis: what tells projects apart comes first.
    QStringList facts = {RatingOf(glance, words_), KindOf(glance, words_), DayOf(project)};
    facts.removeAll(QString());
    entry.setData(kFactsRole, facts.join(QStringLiteral(" · ")));
    QStringList tip = {path, FromUtf8(glance.title), facts.join(QStringLiteral(" · ")),
                       HindranceOf(glance, words_)};
    tip.removeAll(QString());
    entry.setToolTip(tip.join('\n'));
    entry.setData(Qt::AccessibleTextRole, entry.text() + ", " + tip.join(", "));
  }
}

void ProjectList::OpenCurrent() {
  // A click that also activates opens once: by then the start screen is gone.
  if (currentItem() == nullptr || !isVisible()) return;
  const QString path = currentItem()->data(kPathRole).toString();
  if (!path.isEmpty()) emit Opened(path.toStdString());
}

}  // namespace velmar::shell
