#pragma once

#include <QAbstractButton>

class QMenu;
class QToolButton;

namespace velmar::shell {

/// A card of the start screen: the drawing of an element kind over its name, and a button that opens the list
/// of its calculations.
class KindCard : public QAbstractButton {
  Q_OBJECT
 public:
  /// @param icon a line drawing of the product's icons
  /// @param list_tip what the button of the list says
  KindCard(const QString& name, const char* icon, const QString& list_tip, QWidget* parent = nullptr);

  /// The menu that the button opens.
  QMenu* Calculations() const { return calculations_; }

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QMenu* calculations_ = nullptr;
  QToolButton* list_ = nullptr;
};

}  // namespace velmar::shell
