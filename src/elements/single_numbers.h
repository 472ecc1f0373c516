#pragma once

#include <vector>

#include "acoustics/airborne_numbers.h"
#include "acoustics/impact_numbers.h"
#include "elements/catalogue.h"
#include "elements/result_set.h"
#include "foundation/message.h"

namespace velmar::elements {

/// One rating of a result, as a list shows it.
struct SingleNumber {
  const char* key = "";     ///< as other programs read it: "C50-5000", "STC"
  const char* symbol = "";  ///< as a person reads it, the same in every language
  double value = 0.0;
  int decimals = 0;
  const char* unit = "";  ///< "dB", or nothing for the classes of ASTM
  MessageRow meaning{};   ///< what it is and after which standard
  bool further = true;    ///< not one of Rw, C, Ctr and Ln,w, which every result shows
};

/// The numbers that are there, in the order of the standards.
std::vector<SingleNumber> SingleNumbersOf(const acoustics::AirborneNumbers& numbers);
std::vector<SingleNumber> SingleNumbersOf(const acoustics::ImpactNumbers& numbers);

/// Every number that the spectrum of `result` gives, the terms against the rating that the calculation shows;
/// none without a spectrum. For a lining they are those of the element with its lining, C and Ctr included.
/// In a facade a band of 0 stands for one that a part has no value for, and counts as missing.
/// @throws ArithmeticFailure when the spectrum holds what no rating exists for
std::vector<SingleNumber> SingleNumbersOf(const ResultSet& result, Calculation calculation);

}  // namespace velmar::elements
