#pragma once

namespace velmar {

/// `value` rounded to a whole number, ties to the even one (2.5 gives 2, 3.5 gives 4). Never -0.
double RoundToEven(double value);

/// `value` rounded to `decimals` decimals, ties to the even digit. A tie is found by scaling with
/// 10^decimals, so that 0.25 gives 0.2 and 0.35 gives 0.4. Never -0.
double RoundToEven(double value, int decimals);

/// Whether `value` lies between `lowest` and `highest`, both inside. A value beside an end by no more than
/// rounding (relative 1e-12) stands at it: a mass that was divided by a thickness and meant 1600 is inside up
/// to 1600. An end may be infinite.
bool IsWithin(double value, double lowest, double highest);

}  // namespace velmar
