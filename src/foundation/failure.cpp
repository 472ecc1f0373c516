#include "foundation/failure.h"

#include <cmath>
#include <utility>

#include "foundation/message_rows.h"

namespace velmar {

Failure::Failure(Message message, std::string detail)
    : message_(std::move(message)), detail_(std::move(detail)) {}

ArithmeticFailure::ArithmeticFailure(std::string detail)
    : Failure({{kArithmeticFailureRow}}, std::move(detail)) {}

ArithmeticFailure::ArithmeticFailure(MessageRow cause, std::string detail)
    : Failure({{kArithmeticFailureRow}, {cause}}, std::move(detail)) {}

ArithmeticFailure::ArithmeticFailure(MessageLine cause, std::string detail)
    : Failure({{kArithmeticFailureRow}, std::move(cause)}, std::move(detail)) {}

double RequireFinite(double value, const char* name) {
  if (!std::isfinite(value)) throw ArithmeticFailure(std::string(name) + " is not a finite number");
  return value;
}

}  // namespace velmar
