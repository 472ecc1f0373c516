#pragma once

class QWidget;

namespace velmar::shell {

/// Gives every button of `window`, and every caption of a field, a letter that Alt reaches it with: the first
/// letter of a word where it is free, and none twice. Buttons choose before captions.
void SetMnemonics(QWidget& window);

}  // namespace velmar::shell
