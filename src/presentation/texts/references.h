#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "elements/catalogue.h"
#include "foundation/message_rows.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {

/// What stands behind the marks "[1]" to "[28]" of the theories: relation 1 first.
inline constexpr std::array kRelationReferenceRows = {
    kReference1Row,  kReference2Row,  kReference3Row,  kReference4Row,  kReference5Row,  kReference6Row,
    kReference7Row,  kReference8Row,  kReference9Row,  kReference10Row, kReference11Row, kReference12Row,
    kReference13Row, kReference14Row, kReference15Row, kReference16Row, kReference17Row, kReference18Row,
    kReference19Row, kReference20Row, kReference21Row, kReference22Row, kReference23Row, kReference24Row,
    kReference25Row, kReference26Row, kReference27Row, kReference28Row};

/// "[10] Pareti doppie ..."; an empty text for a mark that there is not.
std::string ReferenceText(int mark, const Words& words);

/// The model of `calculation` with its full citation.
std::string ModelReference(elements::Calculation calculation, const Words& words);

/// What a reference is cited for.
enum class ReferenceKind { kRelation, kModel, kRating };

/// "relation", "model", "rating".
const char* KindText(ReferenceKind kind);

/// One entry of the list of references.
struct Reference {
  ReferenceKind kind = ReferenceKind::kRelation;
  int mark = 0;                             ///< of a relation, "[1]" to "[28]"; 0 for none
  std::string text{};                       ///< with its mark
  std::vector<std::string> calculations{};  ///< the stored names of those that rest on it
};

/// All that documents cite: relations by their marks, then models, then the standards of rating.
std::vector<Reference> AllReferences(const Words& words);

}  // namespace velmar::presentation
