#pragma once

class QLineEdit;
class QWidget;

namespace velmar::shell {

/// From now on the whole text of `field` is selected whenever it gets the focus, by whatever way: typing
/// replaces what is there. A second click puts the caret, as everywhere. Coming back from a menu or another
/// window leaves the selection as it was.
/// @param owner what gets the focus in the field's stead: the list that the line edit belongs to
void SelectAllOnFocus(QLineEdit* field, QWidget* owner = nullptr);

}  // namespace velmar::shell
