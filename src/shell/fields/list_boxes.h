#pragma once

#include <QComboBox>
#include <QStringList>
#include <string>

#include "shell/fields/corrections.h"

namespace velmar::shell {

/// A list that the wheel moves only while it has the focus.
class QuietBox : public QComboBox {
 public:
  QuietBox(const QString& object_name, QWidget* parent = nullptr);

 protected:
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

/// A list without entry by text: letters typed at it are swallowed.
class ChoiceBox : public QuietBox {
 public:
  using QuietBox::QuietBox;

  /// Offers `items`; nothing happens when they are offered already.
  void Offer(const QStringList& items);
  /// Shows item `index`, -1 for none.
  void Show(int index);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QStringList items_;
};

/// A count that is chosen from a list or typed. It shows what the set-up makes of it.
class CountBox : public QuietBox {
  Q_OBJECT

 public:
  CountBox(const QString& object_name, int lowest, int highest, QWidget* parent = nullptr);

  void Show(const std::string& text);

 signals:
  void Edited(const std::string& text);
  void Corrected(velmar::shell::Correction correction, int limit);

 private:
  void Take(const QString& text);
  void FollowText();

  int highest_;
  QString shown_;
};

}  // namespace velmar::shell
