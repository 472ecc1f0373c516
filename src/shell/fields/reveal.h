#pragma once

#include <QString>

class QWidget;

namespace velmar::shell {

/// Brings the control `name` of `window` before the user, on whatever tab it stands: gives it the focus and
/// puts `words` beside it until something is entered there. Nothing happens when there is no such control.
void PointAt(const QWidget& window, const QString& name, const QString& words);

}  // namespace velmar::shell
