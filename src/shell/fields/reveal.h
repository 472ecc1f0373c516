#pragma once

#include <QString>

class QWidget;

namespace velmar::shell {

/// Brings `field` before the user: every tab that it stands on becomes current, and what scrolls it scrolls
/// to it.
void BringForward(QWidget* field);

/// Brings `field` before the user, gives it the focus and puts `words` beside it until something is entered
/// there.
void PointAt(QWidget* field, const QString& words);

}  // namespace velmar::shell
