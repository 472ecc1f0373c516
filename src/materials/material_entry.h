#pragma once

#include <array>
#include <string>
#include <variant>

#include "elements/materials.h"
#include "foundation/message.h"
#include "foundation/catalogue_rows.h"
#include "materials/keywords.h"
#include "storage/materials/material_row.h"

namespace velmar::materials {

/// What the editor of structural materials (`Form5`) holds, as typed.
struct StructuralEntry {
  std::string name{};                ///< `Text1`
  std::string description{};         ///< `Text2`
  std::string thickness{};           ///< `Text3`, mm
  std::string density{};             ///< `Text4`, kg/m³
  std::string surface_mass{};        ///< `Text5`, kg/m²
  std::string youngs_modulus{};      ///< `Text6`, GPa
  std::string critical_frequency{};  ///< `Text7`, Hz; empty is 0
  std::string loss_factor{};         ///< `Text8`
  std::string poissons_ratio{};      ///< `Text9`; empty is 0
  std::string keyword{};             ///< `Text10`; empty is kNotSpecifiedRow
  std::string source{};              ///< `TextFonte`

  bool operator==(const StructuralEntry&) const = default;
};

/// What the editor of fibrous materials (`Form6`) holds, as typed.
struct FibrousEntry {
  std::string name{};                       ///< `Text1`
  std::string description{};                ///< `Text2`
  std::string keyword = "non specificata";  ///< `Text8`; empty is kNotSpecifiedRow
  std::string thickness = "100";            ///< `Text10`, mm
  std::string density{};                    ///< `Text9`, kg/m³
  bool porous = true;                       ///< `Option1`(0)
  std::string youngs_modulus = "0.05";      ///< `Text11`, GPa; not of a porous one
  std::string loss_factor = "0.01";         ///< `Text12`; not of a porous one
  std::string poissons_ratio{};             ///< `Text13`; not of a porous one; empty is 0
  std::string flow_resistance = "4000";     ///< `Text14`, Pa s/m; of a porous one
  std::array<std::string, elements::kAbsorptionBandCount> absorption{};  ///< `TextAlfa`; of a porous one
  std::string source{};                                                  ///< `TextFonte`
  std::string computation{};  ///< what was computed and how, for the source; in no box

  bool operator==(const FibrousEntry&) const = default;
};

/// What the editor of resilient materials (`Form6`) holds, as typed.
struct ResilientEntry {
  std::string name{};                       ///< `Text1`
  std::string description{};                ///< `Text2`
  std::string keyword = "non specificata";  ///< `Text8`; empty is kNotSpecifiedRow
  std::string stiffness{};                  ///< `Text3`, s', MN/m³
  std::string improvement{};                ///< `Text4`, Delta Ln,w, dB
  std::string resonance{};                  ///< `Text5`, f0, Hz
  std::string thickness{};                  ///< `Text6`, mm
  std::string density{};                    ///< `Text7`, kg/m³; empty is 0
  std::string source{};                     ///< `TextFonte`

  bool operator==(const ResilientEntry&) const = default;
};

/// Why an entry is not stored.
struct EntryRefusal {
  Message message{};
  std::string box{};  ///< control that takes the focus, such as "Text1"; empty for none
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
