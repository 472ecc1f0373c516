#pragma once

#include "storage/validation/measured_data.h"

namespace velmar::validation {

/// The measured constructions that come with the program, read once.
inline const elements::MeasuredData& ShippedMeasurements() {
  static const elements::MeasuredData data = storage::ReadMeasuredData(VALIDATION_DATA);
  return data;
}

}  // namespace velmar::validation
