#pragma once

#include <optional>
#include <string>
#include <vector>

#include "elements/setup.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {

/// What a row of a report's layer or component table tells of.
enum class StructureKind {
  kHeading,  ///< names the stack whose layers follow
  kLayer,
  kCavity,  ///< air, or a cavity described as a whole
  kWords,   ///< an input that is no layer: the connections, the rating of a base element
  kBase,    ///< the wall or floor under a lining
  kPart,    ///< a part of a facade
};

/// A row of a report's table of layers or components. A number that the kind does not have is absent.
struct StructureRow {
  StructureKind kind = StructureKind::kLayer;
  int number = 0;             ///< layers and parts are counted; 0 for none
  std::string name{};         ///< as the material or part is called
  std::string description{};  ///< what the database or the user says of it
  double thickness_mm = 0.0;  ///< of one sheet; 0 for none
  int multiplicity = 1;
  std::optional<double> mass_kg_m2{};  ///< of all sheets
  std::string rating{};                ///< Rw or Dn,e,w as entered, dB
  std::string area{};                  ///< m² as entered, "-" for a small element
  std::string share{};                 ///< of the facade's area, "12,5"
  std::string note{};
};

/// The stacks of the chosen calculation as they stand, each behind its name, in the order of the printed
/// page; of a facade the opaque part and its components. Nothing before a choice.
std::vector<StructureRow> StructureRowsOf(const elements::Setup& setup, const Words& words);

/// What a material's description says of it: the first sentence, without the remarks of the database behind
/// it and without its full stop.
std::string WithoutRemarks(const std::string& description);

/// "name: description", or the one that is not empty. A layer's description is without remarks.
std::string FullName(const StructureRow& row);

}  // namespace velmar::presentation
