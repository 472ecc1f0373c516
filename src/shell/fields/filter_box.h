#pragma once

#include <QStringList>
#include <QStringListModel>

#include "shell/fields/searched_box.h"

namespace velmar::shell {

/// The keyword that filters the material lists of a page: one of a list, found by typing a part of it.
class FilterBox : public SearchedBox {
 public:
  explicit FilterBox(const QString& object_name, QWidget* parent = nullptr);

  /// Offers `keywords`; nothing happens when they are offered already.
  void Offer(const QStringList& keywords);

 private:
  QStringListModel* Keywords() { return static_cast<QStringListModel*>(model()); }
};

}  // namespace velmar::shell
