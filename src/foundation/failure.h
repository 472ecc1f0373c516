#pragma once

#include <exception>
#include <string>

#include "foundation/message.h"

namespace velmar {

/// What went wrong and cannot be answered by going on. Carries what the user is to be told (as rows) and, for
/// logs and tests, the same in plain English with the values that explain it.
class Failure : public std::exception {
 public:
  Failure(Message message, std::string detail);

  const Message& UserMessage() const noexcept { return message_; }
  const char* what() const noexcept override { return detail_.c_str(); }

 private:
  Message message_;
  std::string detail_;
};

/// The arithmetic of a run came to nothing usable: a division by zero, the logarithm of a non-positive
/// number, a value that is not finite. The run ends and leaves no result.
class ArithmeticFailure : public Failure {
 public:
  /// @param detail what failed, in English, with the values
  explicit ArithmeticFailure(std::string detail);
  /// @param cause the row that tells the user what to check
  ArithmeticFailure(MessageRow cause, std::string detail);
  /// @param cause the line that tells the user what to check
  ArithmeticFailure(MessageLine cause, std::string detail);
};

/// `value` itself when it is finite.
/// @param name what the value is, for the failure's detail
/// @throws ArithmeticFailure when it is infinite or not a number
double RequireFinite(double value, const char* name);

}  // namespace velmar
