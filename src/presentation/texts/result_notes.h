#pragma once

#include <string>
#include <vector>

#include "elements/catalogue.h"
#include "elements/result_set.h"
#include "foundation/message.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {

/// A line for every range that the user chose to leave: "Fuori dal campo di validità della relazione [1]:
/// m' = 504 kg/m² (da 80 a 400). Calcolo proseguito per scelta dell'utente."
std::vector<std::string> RangeNotes(elements::Calculation calculation, const elements::ResultSet& result,
                                    const Words& words);

/// The ratings of what a lining or a ceiling makes of its base, out of the improved spectrum: "Elemento
/// risultante: Rw(C; Ctr)= 76,0 (-2; -7) dB". An empty text for anything else and without a spectrum.
/// @throws ArithmeticFailure when the spectrum holds what no rating exists for
std::string ResultingElementLine(elements::Calculation calculation, const elements::ResultSet& result,
                                 const Words& words);

/// All that belongs beside a result wherever it is shown, a line each: ResultingElementLine(), RangeNotes()
/// and `confidence`.
/// @param confidence what is known of its error; no line where nothing is to be said
std::vector<std::string> ResultNotes(elements::Calculation calculation, const elements::ResultSet& result,
                                     const Message& confidence, const Words& words);

/// `lines` with line breaks between them.
std::string Joined(const std::vector<std::string>& lines);

}  // namespace velmar::presentation
