#pragma once

#include <optional>
#include <string>

#include "elements/catalogue.h"
#include "elements/result_set.h"

namespace velmar::presentation {

/// A level in dB with one decimal and a decimal comma, ties to even ("###0.0"); an empty text for none.
std::string FormatLevel(std::optional<double> level_db);

/// An adaptation term in dB as a whole number, ties to even; an empty text for none.
std::string FormatTerm(std::optional<double> term_db);

/// The reference curve of `family` plus `shift` in band `band`, as a plain number; an empty text outside 100
/// to 3150 Hz and without a shift.
std::string ReferenceLevel(elements::Family family, std::optional<double> shift, std::size_t band);

/// The result as paper and reports set it: "Rw(C; Ctr)= 54,0 (-2; -6) dB", "Lnw(Ci)= 58,0 (1) dB". Without
/// adaptation terms (generic linings) "Rw= 58,0 dB"; an empty text without a rating.
std::string ResultLine(elements::Family family, const elements::ResultSet& result);

/// What paper says of the bands beyond the rated ones, in one line: "C50-5000= -1; Ctr,50-5000= -5 dB; STC=
/// 44; OITC= 36", "CI,50-2500= 2 dB; IIC= 50". A number whose bands are missing is left out; an empty text
/// without any, and for linings and ceilings, whose terms stand against their base.
std::string FurtherNumbersLine(elements::Calculation calculation, const elements::ResultSet& result);

/// The improvement by a lining, "DRw= 12 dB", or by a floor covering, "DLw= 21,3 dB"; an empty text where
/// there is none.
std::string ImprovementLine(elements::Family family, const elements::ResultSet& result);

}  // namespace velmar::presentation
