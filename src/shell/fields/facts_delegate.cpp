#include "shell/fields/facts_delegate.h"

#include <QApplication>
#include <QPainter>
#include <utility>

namespace velmar::shell {
namespace {

constexpr int kGap = 6;

}  // namespace

FactsDelegate::FactsDelegate(FactsOf facts, QObject* parent)
    : QStyledItemDelegate(parent), facts_(std::move(facts)) {}

int FactsDelegate::RoomFor(const QFontMetrics& metrics) {
  return metrics.horizontalAdvance(QStringLiteral("★ s' 000,0 MN/m³ · 0000 kg/m³ · 000,0 mm")) + 2 * kGap;
}

void FactsDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
  QStyleOptionViewItem item = option;
  initStyleOption(&item, index);
  const QString name = std::exchange(item.text, QString());
  const auto known = known_.constFind(name);
  const QString facts = known != known_.constEnd() ? *known : *known_.insert(name, facts_(name));
  const QStyle* style = item.widget != nullptr ? item.widget->style() : QApplication::style();
  style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
  const bool selected = item.state.testFlag(QStyle::State_Selected);
  const QRect room = item.rect.adjusted(kGap, 0, -kGap, 0);
  const int taken = item.fontMetrics.horizontalAdvance(facts) + 2 * kGap;
  painter->save();
  painter->setFont(item.font);
  painter->setPen(item.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
  const QRect left = room.adjusted(0, 0, -taken, 0);
  painter->drawText(left, Qt::AlignLeft | Qt::AlignVCenter,
                    item.fontMetrics.elidedText(name, Qt::ElideRight, left.width()));
  painter->setPen(item.palette.color(selected ? QPalette::HighlightedText : QPalette::PlaceholderText));
  painter->drawText(room, Qt::AlignRight | Qt::AlignVCenter, facts);
  painter->restore();
}

}  // namespace velmar::shell
