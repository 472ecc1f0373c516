#pragma once

class QWidget;

namespace velmar::material_editors {

/// Gives every button below `window`, and every label that belongs to a box, a letter of its own that Alt
/// reaches it by: the first letter of a word where it is still free. The words stay as they are.
void AssignMnemonics(QWidget& window);

}  // namespace velmar::material_editors
