#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "validation/accuracy.h"

namespace velmar::validation {

/// What is known of the errors of the models, read when it is first asked for and kept: a start waits for
/// nothing that no result needs yet.
class KnownAccuracy {
 public:
  using Read = std::function<Accuracy()>;

  /// @param read gives nothing known rather than throw
  explicit KnownAccuracy(Read read = [] { return Accuracy(); }) : read_(std::move(read)) {}

  /// Not to be called first from two threads at once; what it gives may be read from any.
  const Accuracy& Get() const {
    if (!accuracy_) accuracy_ = read_();
    return *accuracy_;
  }

 private:
  Read read_;
  mutable std::optional<Accuracy> accuracy_{};
};

}  // namespace velmar::validation
