#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <optional>
#include <string>
#include <variant>

#include "elements/materials.h"
#include "elements/plausibility.h"
#include "foundation/catalogue_rows.h"
#include "foundation/message.h"
#include "materials/keywords.h"
#include "storage/materials/material_row.h"

namespace velmar::materials {

/// What the editor of structural materials holds, as typed.
struct StructuralEntry {
  std::string name{};
  std::string description{};
  std::string thickness{};           ///< mm
  std::string density{};             ///< kg/m³
  std::string surface_mass{};        ///< kg/m²
  std::string youngs_modulus{};      ///< GPa
  std::string critical_frequency{};  ///< Hz; empty is 0
  std::string loss_factor{};
  std::string poissons_ratio{};  ///< empty is 0
  std::string keyword{};         ///< empty is kNotSpecifiedRow
  std::string source{};

  bool operator==(const StructuralEntry&) const = default;
};

/// What the editor of fibrous materials holds, as typed.
struct FibrousEntry {
  std::string name{};
  std::string description{};
  std::string keyword = "non specificata";  ///< empty is kNotSpecifiedRow
  std::string thickness = "100";            ///< mm
  std::string density{};                    ///< kg/m³
  bool porous = true;
  std::string youngs_modulus = "0.05";                                   ///< GPa; not of a porous one
  std::string loss_factor = "0.01";                                      ///< not of a porous one
  std::string poissons_ratio{};                                          ///< not of a porous one; empty is 0
  std::string flow_resistance = "4000";                                  ///< Pa s/m; of a porous one
  std::array<std::string, elements::kAbsorptionBandCount> absorption{};  ///< of a porous one
  std::string source{};
  std::string computation{};  ///< what was computed and how, for the source; in no box

  bool operator==(const FibrousEntry&) const = default;
};

/// What the editor of resilient materials holds, as typed.
struct ResilientEntry {
  std::string name{};
  std::string description{};
  std::string keyword = "non specificata";  ///< empty is kNotSpecifiedRow
  std::string stiffness{};                  ///< s', MN/m³
  std::string improvement{};                ///< Delta Ln,w, dB
  std::string resonance{};                  ///< f0, Hz
  std::string thickness{};                  ///< mm
  std::string density{};                    ///< kg/m³; empty is 0
  std::string source{};

  bool operator==(const ResilientEntry&) const = default;
};

/// What of an entry a refusal is about: the name, or a number of the material.
struct EntryField {
  std::optional<elements::MaterialProperty> property{};  ///< nothing: the name
  std::size_t band = 0;                                  ///< of kAbsorption

  auto operator<=>(const EntryField&) const = default;
};
inline constexpr EntryField kNameField{};

/// Why an entry is not stored.
struct EntryRefusal {
  Message message{};
  std::optional<EntryField> field{};  ///< the first to be mended; nothing when the entry is not at fault
};

/// The row that an entry stands for; what an editor does not show (thermal values, picture) is empty. The
/// source is what was typed, followed by what was computed. Decimal comma or point. Name, description,
/// keyword and source end at their first line break.
///
/// An entry is refused when its name is empty, when a value it needs is missing (all missing ones are named),
/// when a value is no number, when one is impossible (elements::Judge()), and when an absorption coefficient
/// is not from 0 to 1.5: measured ones may exceed 1. A resilient material needs one of s', Delta Ln,w and f0;
/// s' follows from the others.
std::variant<storage::StructuralRow, EntryRefusal> RowOf(StructuralEntry entry, const KeywordTexts& texts);
std::variant<storage::FibrousRow, EntryRefusal> RowOf(FibrousEntry entry, const KeywordTexts& texts);
std::variant<storage::ResilientRow, EntryRefusal> RowOf(ResilientEntry entry, const KeywordTexts& texts);

/// `source`, and behind it what was computed.
std::string WithComputation(const std::string& source, const std::string& computation);

/// The entry that shows `row`: null is empty, numbers have a decimal comma.
StructuralEntry EntryOf(const storage::StructuralRow& row);
FibrousEntry EntryOf(const storage::FibrousRow& row);
ResilientEntry EntryOf(const storage::ResilientRow& row);

}  // namespace velmar::materials
