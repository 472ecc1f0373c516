#pragma once

#include <QHash>
#include <QStyledItemDelegate>
#include <functional>

namespace velmar::shell {

/// What a list tells of a name beside it, such as "900 kg/m³ · 12,5 mm".
using FactsOf = std::function<QString(const QString& name)>;

/// Draws the names of a list with what is known of them at the right edge.
class FactsDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  FactsDelegate(FactsOf facts, QObject* parent);

  /// Asks anew for what it tells.
  void Forget() { known_.clear(); }
  /// The room that the longest facts take beside a name, pixels.
  static int RoomFor(const QFontMetrics& metrics);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  FactsOf facts_;
  mutable QHash<QString, QString> known_{};
};

}  // namespace velmar::shell
