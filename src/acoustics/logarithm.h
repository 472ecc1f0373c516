#pragma once

namespace velmar::acoustics {

/// Common logarithm, ln(x) / ln(10).
/// @throws ArithmeticFailure when `x` is not positive
double Log10(double x);

}  // namespace velmar::acoustics
