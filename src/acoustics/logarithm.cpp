#include "acoustics/logarithm.h"

#include <cmath>
#include <string>

#include "foundation/failure.h"

namespace velmar::acoustics {

double Log10(double x) {
  if (!(x > 0.0)) throw ArithmeticFailure("logarithm of " + std::to_string(x));
  static const double kLn10 = std::log(10.0);
  return std::log(x) / kLn10;
}

}  // namespace velmar::acoustics
