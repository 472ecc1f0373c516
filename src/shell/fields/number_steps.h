#pragma once

namespace velmar::shell {

class NumberField;

/// From now on the arrows up and down and the wheel change the number of `field` by 1, with Ctrl by 10; never
/// to 0 or below. The wheel does so only in a field that has the focus, elsewhere it moves the page. An empty
/// field begins at its placeholder.
void StepByArrows(NumberField* field);

}  // namespace velmar::shell
