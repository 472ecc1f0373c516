#include "shell/fields/filter_box.h"

namespace velmar::shell {

FilterBox::FilterBox(const QString& object_name, QWidget* parent)
    : SearchedBox(object_name, new QStringListModel, {Correction::kNoKeyword, Correction::kNoKeyword},
                  parent) {
  model()->setParent(this);
  setSizeAdjustPolicy(QComboBox::AdjustToContents);
}

void FilterBox::Offer(const QStringList& keywords) {
  if (Keywords()->stringList() != keywords) Keywords()->setStringList(keywords);
}

}  // namespace velmar::shell
