#pragma once

namespace velmar {

/// `value` rounded to a whole number, ties to the even one (2.5 gives 2, 3.5 gives 4). Never -0.
double RoundToEven(double value);

/// `value` rounded to `decimals` decimals, ties to the even digit. A tie is found by scaling with
/// 10^decimals, so that 0.25 gives 0.2 and 0.35 gives 0.4. Never -0.
double RoundToEven(double value, int decimals);

}  // namespace velmar
