#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "elements/setup.h"

namespace velmar::storage {

/// The three texts that tell a project file's calculation. A file may name one that this program does not
/// know.
struct StoredCalculation {
  std::string family{};
  std::string variant{};
  std::string orientation{};

  bool operator==(const StoredCalculation&) const = default;
};

/// The texts of `calculation`.
StoredCalculation TextsOf(elements::Calculation calculation);

using elements::ClosingLines;
using FamilyPart = elements::FilePart;

/// The lines of a family part that come and go with the variant.
struct PartLayout {
  FamilyPart part{};
  bool support_line = false;     ///< `Text8`
  bool hanger_line = false;      ///< `ComboTipoAppendino`
  bool decoupling_line = false;  ///< `CheckDesolidarizza`
  ClosingLines closing = ClosingLines::kBlank;
};

/// The layout that the texts of a file call for; the variant need not be known. Nothing for an unknown
/// family.
std::optional<PartLayout> FindPartLayout(std::string_view family, std::string_view variant);

}  // namespace velmar::storage
